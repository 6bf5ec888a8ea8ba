#include "reader/structure_reader.h"

#include "accessors/charge_accessor.h"
#include "accessors/element_accessors.h"
#include "accessors/leading_accessors.h"
#include "accessors/message_accessor.h"
#include "accessors/node_accessor.h"
#include "accessors/support_accessors.h"
#include "com/guarded.h"
#include "com/object.h"

namespace tamur {
namespace {

using com::Guarded;

// Makes an accessor of that class over a table and gives the host its only reference.
template <class Class, class Source, class Interface>
HRESULT MakeAccessor(Source&& source, Interface** out)
{
    auto* const accessor = new com::CComObject<Class>(std::forward<Source>(source));
    accessor->AddRef();
    *out = accessor;
    return S_OK;
}

}  // namespace

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
    return Guarded([&] {
        const std::string path = platform::NarrowPath(FileName != nullptr ? FileName : OLESTR(""));
        return ImportModelFile(model_, path, openFiles_) ? S_OK : E_FAIL;
    });
}

HRESULT CTAMURStructureReader::GetMaterialAccessor(ITMRMaterialAccessor** out) noexcept
{
    *out = nullptr;
    return Guarded([&] {
        return MakeAccessor<CTMRMaterialAccessor>(ArrayView(model_, model_.barTables->materials),
                                                  out);
    });
}

HRESULT CTAMURStructureReader::GetSectionAccessor(ITMRSectionAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRSectionAccessor>(ArrayView(model_, model_.barTables->sections),
                                                 out);
    });
}

HRESULT CTAMURStructureReader::GetAttacheAccessor(ITMRAttacheAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRAttacheAccessor>(ArrayView(model_, model_.barTables->releases),
                                                 out);
    });
}

HRESULT CTAMURStructureReader::GetGroupeAccessor(ITMRGroupeAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRGroupeAccessor>(ArrayView(model_, model_.groups.Groups()), out);
    });
}

HRESULT CTAMURStructureReader::GetFilaireAccessor(ITMRFilaireAccessor** out) noexcept
{
    return Guarded(
        [&] { return MakeAccessor<CTMRFilaireAccessor>(SharedBars(model_.barTables), out); });
}

HRESULT CTAMURStructureReader::GetSurfaciqueAccessor(ITMRSurfaciqueAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRSurfaciqueAccessor>(FrozenCountView(model_, model_.surfaces), out);
    });
}

HRESULT CTAMURStructureReader::GetOuvertureAccessor(ITMROuvertureAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMROuvertureAccessor>(FrozenCountView(model_, model_.openings), out);
    });
}

HRESULT CTAMURStructureReader::GetParoiAccessor(ITMRParoiAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRParoiAccessor>(FrozenCountView(model_, model_.walls), out);
    });
}

HRESULT CTAMURStructureReader::GetAppuiPonctuelAccessor(ITMRAppuiPonctuelAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRAppuiPonctuelAccessor>(LiveView(model_, model_.pointSupports), out);
    });
}

HRESULT CTAMURStructureReader::GetAppuiLineaireAccessor(ITMRAppuiLineaireAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRAppuiLineaireAccessor>(LiveView(model_, model_.lineSupports), out);
    });
}

HRESULT CTAMURStructureReader::GetAppuiSurfaciqueAccessor(
    ITMRAppuiSurfaciqueAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRAppuiSurfaciqueAccessor>(LiveView(model_, model_.surfaceSupports),
                                                         out);
    });
}

HRESULT CTAMURStructureReader::GetCasAccessor(ITMRCasAccessor** out) noexcept
{
    *out = nullptr;
    return Guarded([&] { return MakeAccessor<CTMRCasAccessor>(CasesCopy(model_.cases), out); });
}

HRESULT CTAMURStructureReader::GetChargeAccessor(ITMRChargeAccessor** out) noexcept
{
    return Guarded([&] { return MakeAccessor<CTMRChargeAccessor>(model_, out); });
}

HRESULT CTAMURStructureReader::GetNodeAccessor(ITMRNodeAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRNodeAccessor>(CheckedView<Node>(model_, model_.nodes), out);
    });
}

HRESULT CTAMURStructureReader::GetMessageAccessor(ITMRMessageAccessor** out) noexcept
{
    *out = nullptr;
    return Guarded([&] { return MakeAccessor<CTMRMessageAccessor>(model_.messages, out); });
}

HRESULT CTAMURStructureReader::GetMasseAccessor(ITMRMasseAccessor** out) noexcept
{
    return Guarded(
        [&] { return MakeAccessor<CTMRMasseAccessor>(LiveView(model_, model_.masses), out); });
}

HRESULT CTAMURStructureReader::GetCableAccessor(ITMRCableAccessor** out) noexcept
{
    return Guarded(
        [&] { return MakeAccessor<CTMRCableAccessor>(LiveView(model_, model_.cables), out); });
}

HRESULT CTAMURStructureReader::GetLineAideAccessor(ITMRLineAideAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRLineAideAccessor>(LiveView(model_, model_.constructionLines), out);
    });
}

HRESULT CTAMURStructureReader::GetLineInterieurAccessor(ITMRLineInterieurAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRLineInterieurAccessor>(LiveView(model_, model_.innerLines), out);
    });
}

HRESULT CTAMURStructureReader::GetDeplacementAccessor(ITMRDeplacementAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRDeplacementAccessor>(LiveView(model_, model_.displacements), out);
    });
}

HRESULT CTAMURStructureReader::GetSurfacicSectionAccessor(
    ITMRSurfacicSectionAccessor** out) noexcept
{
    return Guarded([&] {
        return MakeAccessor<CTMRSurfacicSectionAccessor>(LiveView(model_, model_.surfaceSections),
                                                         out);
    });
}

HRESULT CTAMURStructureReader::GetStructureGlobalData(TMRStructureData* data) noexcept
{
    const Settings& settings = model_.settings;
    *data = {settings.tolerance, settings.workSpace, settings.rigidity};
    return S_OK;
}

}  // namespace tamur
