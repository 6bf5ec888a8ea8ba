#include "accessors/charge_accessor.h"

namespace tamur {

HRESULT CTMRChargeAccessor::GetNbCombinaisonsSkipped(int* count) noexcept
{
    *count = skippedCombinations_;
    return S_OK;
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
