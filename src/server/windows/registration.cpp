#include "server/registration.h"

#include <tamur/com_ptr.h>

#include "com/guarded.h"
#include "com/module.h"
#include "server/windows/instance.h"

namespace tamur {

// Not in the unnamed namespace: the compiler would conclude that nobody implements it.
struct IRegistrar : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE AddReplacement(LPCOLESTR key, LPCOLESTR item) = 0;
    virtual HRESULT STDMETHODCALLTYPE ClearReplacements() = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegisterSz(LPCOLESTR file, LPCOLESTR id,
                                                         LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregisterSz(LPCOLESTR file, LPCOLESTR id,
                                                           LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileRegister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileUnregister(LPCOLESTR file) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringRegister(LPCOLESTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE StringUnregister(LPCOLESTR text) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceRegister(LPCOLESTR file, UINT id, LPCOLESTR type) = 0;
    virtual HRESULT STDMETHODCALLTYPE ResourceUnregister(LPCOLESTR file, UINT id,
                                                         LPCOLESTR type) = 0;
};

namespace {

// The registrar of the system, which runs scripts that are resources.
constexpr CLSID kRegistrarClass = {
    0x44EC053A, 0x400F, 0x11D0, {0x9D, 0xCD, 0x00, 0xA0, 0xC9, 0x03, 0x91, 0xD3}};
constexpr IID kRegistrarInterface = {
    0x44EC053B, 0x400F, 0x11D0, {0x9D, 0xCD, 0x00, 0xA0, 0xC9, 0x03, 0x91, 0xD3}};

WideString ModulePath()
{
    WideString path(MAX_PATH, 0);
    for (;;) {
        const DWORD size = static_cast<DWORD>(path.size());
        const DWORD length = GetModuleFileNameW(Instance(), path.data(), size);
        if (length < size) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

// Scripts end a value at a quote, so a quote in the path is written twice.
WideString Quoted(const WideString& path)
{
    WideString quoted;
    for (const OLECHAR character : path) {
        quoted += character;
        if (character == L'\'') quoted += character;
    }
    return quoted;
}

HRESULT RunScript(unsigned resource, BOOL doRegister)
{
    ComPtr<IRegistrar> registrar;
    HRESULT result = CoCreateInstance(kRegistrarClass, nullptr, CLSCTX_INPROC_SERVER,
                                      kRegistrarInterface, registrar.PutVoid());
    if (FAILED(result)) return result;
    const WideString path = ModulePath();
    result = registrar->AddReplacement(L"MODULE", Quoted(path).c_str());
    if (FAILED(result)) return result;
    return doRegister ? registrar->ResourceRegister(path.c_str(), resource, L"REGISTRY")
                      : registrar->ResourceUnregister(path.c_str(), resource, L"REGISTRY");
}

}  // namespace

HRESULT RunRegistryScript(unsigned resource, BOOL doRegister)
{
    return com::Guarded([&] { return RunScript(resource, doRegister); });
}

HRESULT RegisterTypeLibrary()
{
    return com::Guarded([] {
        WideString path = ModulePath();
        ComPtr<ITypeLib> library;
        const HRESULT result = LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.Put());
        return SUCCEEDED(result) ? RegisterTypeLib(library.Get(), path.data(), nullptr) : result;
    });
}

HRESULT UnregisterTypeLibrary()
{
    return com::Guarded([] {
        ComPtr<ITypeLib> library;
        const HRESULT result = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Put());
        if (FAILED(result)) return result;
        TLIBATTR* attributes = nullptr;
        const HRESULT described = library->GetLibAttr(&attributes);
        if (FAILED(described)) return described;
        const HRESULT removed =
            UnRegisterTypeLib(com::TheModule().LibraryId(), attributes->wMajorVerNum,
                              attributes->wMinorVerNum, attributes->lcid, attributes->syskind);
        library->ReleaseTLibAttr(attributes);
        return removed;
    });
}

}  // namespace tamur
