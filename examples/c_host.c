/* A C host: imports a model file, whose name is in ASCII here, and says what it holds. */
#define COBJMACROS
#include <TAMURReader.h>
#include <stdio.h>

#ifdef _WIN32
typedef HRESULT(STDAPICALLTYPE* Getter)(REFCLSID, REFIID, void**);
STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object)
{
    HMODULE library = LoadLibraryA("TAMURReader.dll"); /* until the program ends */
    if (library == NULL) return E_FAIL;
    const Getter get = (Getter)(void (*)(void))GetProcAddress(library, "DllGetClassObject");
    return get(classId, id, object);
}
#else
extern HRESULT DllGetClassObject(REFCLSID classId, REFIID id, void** object);
#endif

static void PrintText(BSTR text) /* null when there is none; in ASCII here */
{
    for (UINT i = 0; i < SysStringLen(text); ++i) putchar(text[i]);
}

static void PrintNodes(ITAMURStructureReader* reader)
{
    LONG count = 0;
    ITMRNodeAccessor* nodes = NULL;
    ITAMURStructureReader_GetNodeAccessor(reader, &nodes);
    ITMRNodeAccessor_GetNbNodes(nodes, &count);
    printf("nodes: %ld\nfirst label: ", (long)count);
    for (LONG rank = 0, found = 0; rank < count && !found; ++rank) {
        TMRNode node = {0};
        ITMRNodeAccessor_GetNodeAtRank(nodes, rank, &node);
        found = node.ElemLabels.nbLabels > 0;
        if (found) PrintText(node.ElemLabels.tabLabels[0]); /* the label is lent: not to be freed */
        CoTaskMemFree(node.ElemLabels.tabLabels);           /* the block of labels is the host's */
    }
    ITMRNodeAccessor_Release(nodes);
}

/* Every string and every array of a record is the host's. */
static void FreeBar(TMRFilaire* bar)
{
    TMRSectionGeometry* sections[] = {&bar->StartSection, &bar->EndSection};
    TMRAttache* releases[] = {&bar->StartConnection, &bar->EndConnection};
    for (int i = 0; i < 2; ++i) {
        SysFreeString(sections[i]->SectionLib);
        CoTaskMemFree(sections[i]->epureSec.pTabPoints);
        SysFreeString(releases[i]->AttacheLib);
        SysFreeString(releases[i]->Titre);
        SysFreeString(releases[i]->Geom);
        SysFreeString(releases[i]->Def);
    }
    CoTaskMemFree(bar->ElemLabels.tabLabels);
    SysFreeString(bar->ElementType);
    SysFreeString(bar->ErrorMessage);
    SysFreeString(bar->FilaireMaterial.MaterialName);
    SysFreeString(bar->CogPosition);
}

static void PrintBars(ITAMURStructureReader* reader)
{
    LONG count = 0;
    ITMRFilaireAccessor* bars = NULL;
    ITAMURStructureReader_GetFilaireAccessor(reader, &bars);
    ITMRFilaireAccessor_GetNbFilaires(bars, &count);
    printf("\nbars: %ld\n", (long)count);
    for (LONG rank = 0; rank < count; ++rank) {
        TMRFilaire bar = {0};
        if (ITMRFilaireAccessor_GetFilaireAtRank(bars, rank, &bar) != S_OK) continue;
        printf("  %ld: ", (long)bar.identifier);
        PrintText(bar.StartSection.SectionLib);
        printf(" in ");
        PrintText(bar.FilaireMaterial.MaterialName);
        printf(", length %ld\n", (long)bar.RealLength);
        FreeBar(&bar);
    }
    ITMRFilaireAccessor_Release(bars);
}

int main(int argc, char** argv)
{
    IClassFactory* factory = NULL;
    ITAMURStructureReader* reader = NULL;
    OLECHAR name[260] = {0};
    for (int i = 0; argc == 2 && i < 259 && argv[1][i] != 0; ++i) name[i] = (OLECHAR)argv[1][i];
    DllGetClassObject(&CLSID_TAMURStructureReader, &IID_IClassFactory, (void**)&factory);
    if (factory == NULL) return 1;
    factory->lpVtbl->CreateInstance(factory, NULL, &IID_ITAMURStructureReader, (void**)&reader);
    factory->lpVtbl->Release(factory);
    BSTR file = SysAllocString(name);
    const HRESULT result = ITAMURStructureReader_Import(reader, file);
    SysFreeString(file);
    if (result == S_OK) {
        PrintNodes(reader);
        PrintBars(reader);
    }
    ITAMURStructureReader_Release(reader); /* last: accessors and labels need it */
    return result == S_OK ? 0 : 1;
}
