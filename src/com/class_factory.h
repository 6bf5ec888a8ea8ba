// Class objects.
#pragma once

#include <atomic>

#include "platform/platform.h"

namespace tamur::com {

using InstanceCreator = HRESULT (*)(IUnknown* outer, REFIID riid, void** object);

// Makes instances of one class. The object map keeps the first reference for the life of the
// module; while hosts hold others, the module stays loaded. Counts for any number of threads.
class CComClassFactory final : public IClassFactory {
 public:
    explicit CComClassFactory(InstanceCreator creator) : creator_(creator) {}

    // The creation function of an object map.
    static HRESULT Create(InstanceCreator creator, REFIID riid, void** object) noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override;
    ULONG STDMETHODCALLTYPE Release() noexcept override;

    // An outer object may ask for IUnknown only.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID riid,
                                             void** object) noexcept override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
    InstanceCreator creator_;
    std::atomic<ULONG> references_ = 0;
};

}  // namespace tamur::com
