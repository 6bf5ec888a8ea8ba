// The accessor over all loads, combinations, envelopes and the modal settings.
#pragma once

#include "component/accessor_classes.h"

namespace tamur {

// Sees the tables as they are now; only the number of skipped combinations is that of when the
// accessor was made.
class CTMRChargeAccessor : public CTMRChargeAccessorTables {
 public:
    explicit CTMRChargeAccessor(const Model& model)
        : CTMRChargeAccessorTables(model),
          model_(model),
          skippedCombinations_(model.skippedCombinations)
    {
    }

    HRESULT STDMETHODCALLTYPE GetNbCombinaisonsSkipped(int* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCombinaisonOfCasNum(LONG casNum,
                                                     TMRCombinaison* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetModes(TMRModes* record) noexcept override;

 private:
    const Model& model_;
    std::int32_t skippedCombinations_;
};

}  // namespace tamur
