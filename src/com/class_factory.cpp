#include "com/class_factory.h"

#include <new>

#include "com/module.h"
#include "com/unknown.h"

namespace tamur::com {
namespace {

// The references with which a class object is known to the object map alone, and to a host too.
constexpr ULONG kCached = 1;
constexpr ULONG kInUse = 2;

}  // namespace

HRESULT CComClassFactory::Create(InstanceCreator creator, REFIID riid, void** object) noexcept
{
    auto* const factory = new (std::nothrow) CComClassFactory(creator);
    if (factory == nullptr) return E_OUTOFMEMORY;
    const HRESULT result = factory->QueryInterface(riid, object);
    if (FAILED(result)) delete factory;
    return result;
}

HRESULT CComClassFactory::QueryInterface(REFIID riid, void** object) noexcept
{
    if (object == nullptr) return E_POINTER;
    const bool isOwn = IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IClassFactory);
    return Answer(isOwn ? this : nullptr, object);
}

ULONG CComClassFactory::AddRef() noexcept
{
    const ULONG references = ++references_;
    if (references == kInUse) TheModule().Lock();
    return references;
}

ULONG CComClassFactory::Release() noexcept
{
    const ULONG left = --references_;
    if (left == kCached) TheModule().Unlock();
    if (left == 0) delete this;
    return left;
}

HRESULT CComClassFactory::CreateInstance(IUnknown* outer, REFIID riid, void** object) noexcept
{
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr && !IsEqualIID(riid, IID_IUnknown)) return CLASS_E_NOAGGREGATION;
    return creator_(outer, riid, object);
}

HRESULT CComClassFactory::LockServer(BOOL lock) noexcept
{
    if (lock) {
        TheModule().Lock();
    } else {
        TheModule().Unlock();
    }
    return S_OK;
}

}  // namespace tamur::com
