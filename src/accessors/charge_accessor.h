// The accessor over all loads, combinations, envelopes and the modal settings.
#pragma once

#include "TAMURReader.h"
#include "model/model.h"

namespace tamur {

// Sees the tables as they are now; only the number of skipped combinations is that of when the
// accessor was made.
class CTMRChargeAccessor : public ITMRChargeAccessor {
 public:
    explicit CTMRChargeAccessor(const Model& model)
        : model_(model), skippedCombinations_(model.skippedCombinations)
    {
    }

    IUnknown* FindInterface(REFIID riid);

    HRESULT STDMETHODCALLTYPE GetNbChargesPonctuelles(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbChargesLineaires(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbChargesSurfaciques(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbChargesPoidsPropre(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbChargesThermiques(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbChargesSismiques(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbCombinaisons(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbCombinaisonsSkipped(int* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNbEnveloppes(LONG* count) noexcept override;

    HRESULT STDMETHODCALLTYPE
    GetChargePonctuelleAtRank(LONG rank, TMRChargePonctuelle* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetChargeLineaireAtRank(LONG rank,
                                                      TMRChargeLineaire* record) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetChargeSurfaciqueAtRank(LONG rank, TMRChargeSurfacique* record) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetChargePoidsPropreAtRank(LONG rank, TMRChargePoidsPropre* record) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetChargeThermiqueAtRank(LONG rank, TMRChargeThermique* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetChargeSismiqueAtRank(LONG rank,
                                                      TMRChargeSismique* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCombinaisonAtRank(LONG rank,
                                                   TMRCombinaison* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCombinaisonOfCasNum(LONG casNum,
                                                     TMRCombinaison* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetEnveloppeAtRank(LONG rank, TMREnveloppe* record) noexcept override;
    HRESULT STDMETHODCALLTYPE GetModes(TMRModes* record) noexcept override;

 private:
    const Model& model_;
    std::int32_t skippedCombinations_;
};

}  // namespace tamur
