// The reader: the one object that hosts create.
#pragma once

#include "component/accessor_getters.h"
#include "import/driver.h"

namespace tamur {

// Owns the model that was imported and makes the accessors over it.
class CTAMURStructureReader : public AccessorGetters, public ISupportErrorInfo {
 public:
    CTAMURStructureReader() = default;
    // `observer` follows the imports and must outlive them.
    explicit CTAMURStructureReader(ImportObserver& observer) : observer_(&observer) {}
    void ForgetObserver() { observer_ = nullptr; }
    [[nodiscard]] const Model& TheModel() const { return model_; }

    IUnknown* FindInterface(REFIID riid);

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) noexcept override;

    HRESULT STDMETHODCALLTYPE Import(BSTR FileName) noexcept override;
    HRESULT STDMETHODCALLTYPE GetStructureGlobalData(TMRStructureData* data) noexcept override;

 private:
    OpenFiles openFiles_;
    ImportObserver* observer_ = nullptr;
};

}  // namespace tamur
