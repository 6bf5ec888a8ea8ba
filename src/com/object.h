// Reference-counted objects. A class that is made into an object derives from its interfaces and
// answers FindInterface(riid): the interface, without a reference, or null. It says nothing of
// reference counts; these wrappers do.
#pragma once

#include <utility>

#include "com/guarded.h"
#include "com/module.h"
#include "com/unknown.h"

namespace tamur::com {

// Holds the module loaded.
class ModuleLock {
 public:
    ModuleLock() { TheModule().Lock(); }
    ModuleLock(const ModuleLock&) = delete;
    ModuleLock& operator=(const ModuleLock&) = delete;
    ~ModuleLock() { TheModule().Unlock(); }
};

// An object of its own. Counts for one thread: an object stays in its apartment. The module is
// locked for longer than any part of the object lives.
template <class Base>
class CComObject final : private ModuleLock, public Base {
 public:
    template <class... Arguments>
    explicit CComObject(Arguments&&... arguments) : Base(std::forward<Arguments>(arguments)...)
    {
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override
    {
        return object == nullptr ? E_POINTER : Answer(this->FindInterface(riid), object);
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override
    {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

 private:
    ULONG references_ = 0;
};

// The inner part of an aggregate. It is the unknown that the outer object keeps; the interfaces
// of Base are the outer object's, and all their references too.
template <class Base>
class CComAggObject final : public IUnknown {
 public:
    explicit CComAggObject(IUnknown* outer) : contained_(outer) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override
    {
        if (object == nullptr) return E_POINTER;
        const bool isOwn = IsEqualIID(riid, IID_IUnknown);
        return Answer(isOwn ? this : contained_.FindInterface(riid), object);
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override
    {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

 private:
    class Contained final : public Base {
     public:
        explicit Contained(IUnknown* outer) : outer_(outer) {}

        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) noexcept override
        {
            return outer_->QueryInterface(riid, object);
        }
        ULONG STDMETHODCALLTYPE AddRef() noexcept override { return outer_->AddRef(); }
        ULONG STDMETHODCALLTYPE Release() noexcept override { return outer_->Release(); }

     private:
        IUnknown* outer_;  // not counted: the outer object outlives its inner part
    };

    ModuleLock lock_;
    Contained contained_;
    ULONG references_ = 0;
};

// Asks a new object, which has no reference yet, for an interface; an object that lacks it goes.
template <class Object>
HRESULT HandOut(Object& created, REFIID riid, void** object)
{
    created.AddRef();
    const HRESULT result = created.QueryInterface(riid, object);
    created.Release();
    return result;
}

// Throws std::bad_alloc.
template <class Base>
HRESULT CreateAndHandOut(IUnknown* outer, REFIID riid, void** object)
{
    if (outer == nullptr) return HandOut(*new CComObject<Base>, riid, object);
    return HandOut(*new CComAggObject<Base>(outer), riid, object);
}

// Creates an instance of Base: inside an aggregate when there is an outer object.
template <class Base>
HRESULT CreateInstance(IUnknown* outer, REFIID riid, void** object) noexcept
{
    return Guarded([&] { return CreateAndHandOut<Base>(outer, riid, object); });
}

}  // namespace tamur::com
