// A host that never registered the component: its manifest alone leads to it. Exit code 0 when
// everything works, else the number of the step that failed.
#include <TAMURReader.h>
#include <tamur/component.h>

namespace {

using tamur::ComPtr;

bool Works(REFCLSID classId)
{
    ComPtr<ITAMURStructureReader> reader;
    TMRStructureData data = {};
    return CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_ITAMURStructureReader,
                            reader.PutVoid()) == S_OK &&
           reader->GetStructureGlobalData(&data) == S_OK && data.espaceDeTravail == TMRWS_SPATIAL;
}

int Use()
{
    // The class identifier that a name gives here is one of the system's own making.
    int step = 1;
    for (const wchar_t* const name :
         {L"TAMURReader.TAMURStructureReader", L"TAMURReader.TAMURStructureReader.1"}) {
        CLSID classId = {};
        if (CLSIDFromProgID(name, &classId) != S_OK) return step;
        if (!Works(classId)) return step + 1;
        step += 2;
    }
    if (!Works(CLSID_TAMURStructureReader)) return 5;
    ComPtr<ITMRSurfaciqueAccessor> surfaces;
    if (CoCreateInstance(CLSID_TMRSurfaciqueAccessor, nullptr, CLSCTX_INPROC_SERVER,
                         IID_ITMRSurfaciqueAccessor, surfaces.PutVoid()) != S_OK) {
        return 6;
    }
    ComPtr<ITypeLib> library;
    if (LoadRegTypeLib(LIBID_TAMURREADERLib, 1, 0, 0, library.Put()) != S_OK) return 7;
    ComPtr<IUnknown> material;
    if (CoCreateInstance(CLSID_TMRMaterialAccessor, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                         material.PutVoid()) != REGDB_E_CLASSNOTREG) {
        return 8;
    }
    return 0;
}

}  // namespace

int main()
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int result = Use();
    CoUninitialize();
    return result;
}
