// The one shape of all accessors.
#pragma once

#include <utility>

#include "TAMURReader.h"
#include "accessors/accessor_interface.h"
#include "accessors/records.h"
#include "accessors/views.h"
#include "platform/platform.h"

namespace tamur {

// An accessor with its interface, over a table seen through a view. What is left to the class of
// an accessor is to give the interface's methods their names.
template <class Interface, const IID& interfaceId, class View>
class Accessor : public Interface {
 public:
    explicit Accessor(View view) : view_(std::move(view)) {}

    IUnknown* FindInterface(REFIID riid)
    {
        return IsAccessorInterface(riid, interfaceId) ? this : nullptr;
    }

 protected:
    HRESULT GetCount(LONG* count) const
    {
        *count = view_.Count();
        return S_OK;
    }

    template <class PublicRecord>
    HRESULT GetAtRank(LONG rank, PublicRecord* record) const
    {
        if (!view_.Has(rank)) return E_FAIL;
        return DeliverFrom(view_, rank, record);
    }

    [[nodiscard]] const View& TheView() const { return view_; }

 private:
    View view_;
};

// An accessor that also says for which interface it would set error information.
template <class Interface, const IID& interfaceId, class View>
class ErrorInfoAccessor : public Accessor<Interface, interfaceId, View>, public ISupportErrorInfo {
    using Base = Accessor<Interface, interfaceId, View>;

 public:
    using Base::Base;

    IUnknown* FindInterface(REFIID riid)
    {
        if (IsEqualIID(riid, IID_ISupportErrorInfo)) return static_cast<ISupportErrorInfo*>(this);
        return Base::FindInterface(riid);
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) noexcept override
    {
        return IsEqualIID(riid, interfaceId) ? S_OK : S_FALSE;
    }
};

}  // namespace tamur
