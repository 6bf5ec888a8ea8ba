// The reader: the one object that hosts create.
#pragma once

#include <memory>

#include "TAMURReader.h"
#include "import/driver.h"
#include "model/model.h"

namespace tamur {

// Owns the model that was imported and makes the accessors over it.
class CTAMURStructureReader : public ITAMURStructureReader, public ISupportErrorInfo {
 public:
    IUnknown* FindInterface(REFIID riid);

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) noexcept override;

    HRESULT STDMETHODCALLTYPE Import(BSTR FileName) noexcept override;

    HRESULT STDMETHODCALLTYPE GetMaterialAccessor(ITMRMaterialAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetSectionAccessor(ITMRSectionAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetAttacheAccessor(ITMRAttacheAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetGroupeAccessor(ITMRGroupeAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetFilaireAccessor(ITMRFilaireAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetSurfaciqueAccessor(ITMRSurfaciqueAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetOuvertureAccessor(ITMROuvertureAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetParoiAccessor(ITMRParoiAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetAppuiPonctuelAccessor(ITMRAppuiPonctuelAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetAppuiLineaireAccessor(ITMRAppuiLineaireAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetAppuiSurfaciqueAccessor(ITMRAppuiSurfaciqueAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCasAccessor(ITMRCasAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetChargeAccessor(ITMRChargeAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetNodeAccessor(ITMRNodeAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMessageAccessor(ITMRMessageAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMasseAccessor(ITMRMasseAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCableAccessor(ITMRCableAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetLineAideAccessor(ITMRLineAideAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetLineInterieurAccessor(ITMRLineInterieurAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetDeplacementAccessor(ITMRDeplacementAccessor** out) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetSurfacicSectionAccessor(ITMRSurfacicSectionAccessor** out) noexcept override;

    HRESULT STDMETHODCALLTYPE GetStructureGlobalData(TMRStructureData* data) noexcept override;

 private:
    OpenFiles openFiles_;
    Model model_;
};

}  // namespace tamur
