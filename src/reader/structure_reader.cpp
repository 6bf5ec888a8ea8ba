#include "reader/structure_reader.h"

namespace tamur {

IUnknown* CTAMURStructureReader::FindInterface(REFIID riid)
{
    if (IsEqualIID(riid, IID_ISupportErrorInfo)) return static_cast<ISupportErrorInfo*>(this);
    const bool isOwn =
        IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_ITAMURStructureReader);
    return isOwn ? static_cast<ITAMURStructureReader*>(this) : nullptr;
}

HRESULT CTAMURStructureReader::InterfaceSupportsErrorInfo(REFIID riid) noexcept
{
    return IsEqualIID(riid, IID_ITAMURStructureReader) ? S_OK : S_FALSE;
}

HRESULT CTAMURStructureReader::Import(BSTR FileName) noexcept
{
    return com::Guarded([&] {
        const std::string path = platform::NarrowPath(FileName != nullptr ? FileName : OLESTR(""));
        return ImportModelFile(model_, path, openFiles_, observer_) ? S_OK : E_FAIL;
    });
}

HRESULT CTAMURStructureReader::GetStructureGlobalData(TMRStructureData* data) noexcept
{
    return Deliver(E_OUTOFMEMORY, data, model_.settings);
}

}  // namespace tamur
