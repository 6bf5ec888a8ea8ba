#include "accessors/charge_accessor.h"

#include "accessors/accessor_interface.h"
#include "accessors/records.h"
#include "accessors/views.h"

namespace tamur {
namespace {

template <class Records>
HRESULT GetCount(const Records& records, LONG* count)
{
    *count = static_cast<LONG>(records.Size());
    return S_OK;
}

template <class Records, class PublicRecord>
HRESULT GetAtRank(const Model& model, const Records& records, LONG rank, PublicRecord* record)
{
    const LiveView<Records> view(model, records);
    return view.Has(rank) ? DeliverFrom(view, rank, record) : E_FAIL;
}

}  // namespace

IUnknown* CTMRChargeAccessor::FindInterface(REFIID riid)
{
    return IsAccessorInterface(riid, IID_ITMRChargeAccessor) ? this : nullptr;
}

HRESULT CTMRChargeAccessor::GetNbChargesPonctuelles(LONG* count) noexcept
{
    return GetCount(model_.pointLoads, count);
}

HRESULT CTMRChargeAccessor::GetNbChargesLineaires(LONG* count) noexcept
{
    return GetCount(model_.lineLoads, count);
}

HRESULT CTMRChargeAccessor::GetNbChargesSurfaciques(LONG* count) noexcept
{
    return GetCount(model_.surfaceLoads, count);
}

HRESULT CTMRChargeAccessor::GetNbChargesPoidsPropre(LONG* count) noexcept
{
    return GetCount(model_.selfWeightLoads.Loads(), count);
}

HRESULT CTMRChargeAccessor::GetNbChargesThermiques(LONG* count) noexcept
{
    return GetCount(model_.thermalLoads.Loads(), count);
}

HRESULT CTMRChargeAccessor::GetNbChargesSismiques(LONG* count) noexcept
{
    return GetCount(model_.seismicCases, count);
}

HRESULT CTMRChargeAccessor::GetNbCombinaisons(LONG* count) noexcept
{
    return GetCount(model_.combinations, count);
}

HRESULT CTMRChargeAccessor::GetNbEnveloppes(LONG* count) noexcept
{
    return GetCount(model_.envelopes, count);
}

HRESULT CTMRChargeAccessor::GetNbCombinaisonsSkipped(int* count) noexcept
{
    *count = skippedCombinations_;
    return S_OK;
}

HRESULT CTMRChargeAccessor::GetChargePonctuelleAtRank(LONG rank,
                                                      TMRChargePonctuelle* record) noexcept
{
    return GetAtRank(model_, model_.pointLoads, rank, record);
}

HRESULT CTMRChargeAccessor::GetChargeLineaireAtRank(LONG rank, TMRChargeLineaire* record) noexcept
{
    return GetAtRank(model_, model_.lineLoads, rank, record);
}

HRESULT CTMRChargeAccessor::GetChargeSurfaciqueAtRank(LONG rank,
                                                      TMRChargeSurfacique* record) noexcept
{
    return GetAtRank(model_, model_.surfaceLoads, rank, record);
}

HRESULT CTMRChargeAccessor::GetChargePoidsPropreAtRank(LONG rank,
                                                       TMRChargePoidsPropre* record) noexcept
{
    return GetAtRank(model_, model_.selfWeightLoads.Loads(), rank, record);
}

HRESULT CTMRChargeAccessor::GetChargeThermiqueAtRank(LONG rank, TMRChargeThermique* record) noexcept
{
    return GetAtRank(model_, model_.thermalLoads.Loads(), rank, record);
}

HRESULT CTMRChargeAccessor::GetChargeSismiqueAtRank(LONG rank, TMRChargeSismique* record) noexcept
{
    return GetAtRank(model_, model_.seismicCases, rank, record);
}

HRESULT CTMRChargeAccessor::GetCombinaisonAtRank(LONG rank, TMRCombinaison* record) noexcept
{
    return GetAtRank(model_, model_.combinations, rank, record);
}

HRESULT CTMRChargeAccessor::GetEnveloppeAtRank(LONG rank, TMREnveloppe* record) noexcept
{
    return GetAtRank(model_, model_.envelopes, rank, record);
}

HRESULT CTMRChargeAccessor::GetCombinaisonOfCasNum(LONG casNum, TMRCombinaison* record) noexcept
{
    const Combination* const found = model_.combinations.Find(casNum);
    return found != nullptr ? Deliver(E_OUTOFMEMORY, record, *found) : E_FAIL;
}

HRESULT CTMRChargeAccessor::GetModes(TMRModes* record) noexcept
{
    return Deliver(E_OUTOFMEMORY, record, model_.modes);
}

}  // namespace tamur
