// Loading the component from a C++ host.
#pragma once

#include <TAMURReader.h>
#include <tamur/com_ptr.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#ifndef _WIN32
#include <dlfcn.h>
#endif

namespace tamur {

// The component's file by the name that it keeps as long as the contract holds.
#ifdef _WIN32
inline constexpr const char* kComponentFile = "TAMURReader.dll";
#else
inline constexpr const char* kComponentFile = "libTAMURReader.so.1";
#endif

// A call of the component that did not succeed.
class ComponentError : public std::runtime_error {
 public:
    ComponentError(const std::string& what, HRESULT result)
        : std::runtime_error(what), result_(result)
    {
    }

    // What the call answered.
    [[nodiscard]] HRESULT Result() const { return result_; }

 private:
    HRESULT result_;
};

// Throws ComponentError with "`what` failed (0x80004005)" for a result that is a failure.
inline void Check(HRESULT result, const char* what)
{
    if (SUCCEEDED(result)) return;
    char number[16];
    std::snprintf(number, sizeof number, "0x%08lX",
                  static_cast<unsigned long>(result) & 0xFFFFFFFFul);
    throw ComponentError(std::string(what) + " failed (" + number + ")", result);
}

// A string of the host's own.
class String {
 public:
    explicit String(const OLECHAR* text) : text_(SysAllocString(text)) {}
    String(const String&) = delete;
    String& operator=(const String&) = delete;
    ~String() { SysFreeString(text_); }

    // Still this object's: for parameters that take a string in.
    [[nodiscard]] BSTR Get() const { return text_; }

 private:
    BSTR text_;
};

// The loaded component. Must outlive everything that was got from it.
class Component {
 public:
    // `path` names TAMURReader.dll or libTAMURReader.so. Throws ComponentError.
    explicit Component(const std::filesystem::path& path)
    {
#ifdef _WIN32
        library_ = LoadLibraryW(path.c_str());
        if (library_ == nullptr) {
            throw ComponentError("cannot load " + path.string(),
                                 HRESULT_FROM_WIN32(GetLastError()));
        }
#else
        library_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library_ == nullptr) throw ComponentError(dlerror(), E_FAIL);
#endif
        getClassObject_ =
            Function<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>("DllGetClassObject");
        canUnloadNow_ = Function<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow");
    }
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    ~Component()
    {
#ifdef _WIN32
        FreeLibrary(library_);
#else
        dlclose(library_);
#endif
    }

    // An exported function as `Pointer`. Throws ComponentError when there is none.
    template <class Pointer>
    [[nodiscard]] Pointer Function(const char* name) const
    {
#ifdef _WIN32
        void* const function = reinterpret_cast<void*>(GetProcAddress(library_, name));
#else
        void* const function = dlsym(library_, name);
#endif
        if (function == nullptr) throw ComponentError(std::string("no function ") + name, E_FAIL);
        return reinterpret_cast<Pointer>(function);
    }

    // The component's own DllGetClassObject.
    [[nodiscard]] HRESULT GetClassObject(REFCLSID classId, REFIID riid, void** object) const
    {
        return getClassObject_(classId, riid, object);
    }

    // Whether nothing of the component is held any more.
    [[nodiscard]] bool CanUnloadNow() const
    {
        return canUnloadNow_() == S_OK;
    }

    // A new reader. One reader imports one file. Throws ComponentError.
    [[nodiscard]] ComPtr<ITAMURStructureReader> CreateReader() const
    {
        ComPtr<IClassFactory> factory;
        Check(GetClassObject(CLSID_TAMURStructureReader, IID_IClassFactory, factory.PutVoid()),
              "DllGetClassObject");
        ComPtr<ITAMURStructureReader> reader;
        Check(factory->CreateInstance(nullptr, IID_ITAMURStructureReader, reader.PutVoid()),
              "CreateInstance");
        return reader;
    }

 private:
#ifdef _WIN32
    HMODULE library_;
#else
    void* library_;
#endif
    HRESULT(STDAPICALLTYPE* getClassObject_)(REFCLSID, REFIID, void**);
    HRESULT(STDAPICALLTYPE* canUnloadNow_)();
};

}  // namespace tamur
