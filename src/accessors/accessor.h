// The one shape of all accessors.
#pragma once

#include <cstddef>
#include <tuple>
#include <type_traits>

#include "TAMURReader.h"
#include "accessors/accessor_interface.h"
#include "accessors/deliver.h"
#include "accessors/served_tables.h"

namespace tamur {

// Says that error information is set for no interface but one.
template <const IID& interfaceId>
class ErrorInfoOf : public ISupportErrorInfo {
 public:
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID riid) noexcept override
    {
        return IsEqualIID(riid, interfaceId) ? S_OK : S_FALSE;
    }
};

struct NoErrorInfo {};

// An accessor with its interface, over the tables of those records. What is left to its class,
// which is made from the contract, is to give the interface's methods their names.
template <class Interface, const IID& interfaceId, class... PublicRecords>
class Accessor : public Interface,
                 public std::conditional_t<kSupportsErrorInfo<Interface>, ErrorInfoOf<interfaceId>,
                                           NoErrorInfo> {
 public:
    // Sees the tables as they are now or as they will be, each as its row says.
    explicit Accessor(const Model& model) : views_(See(As<PublicRecords>(), model)...) {}

    // As hosts create it: without a reader its tables are empty.
    Accessor() : Accessor(NoModel()) {}

    IUnknown* FindInterface(REFIID riid)
    {
        if constexpr (kSupportsErrorInfo<Interface>) {
            if (IsEqualIID(riid, IID_ISupportErrorInfo)) {
                return static_cast<ISupportErrorInfo*>(this);
            }
        }
        return IsAccessorInterface(riid, interfaceId) ? static_cast<Interface*>(this) : nullptr;
    }

 protected:
    template <class PublicRecord>
    HRESULT Count(LONG* count) const
    {
        *count = ViewOf<PublicRecord>().Count();
        return S_OK;
    }

    template <class PublicRecord>
    HRESULT AtRank(LONG rank, PublicRecord* record) const
    {
        const auto& view = ViewOf<PublicRecord>();
        return view.CheckRank(rank) ? DeliverFrom(view, rank, record) : E_FAIL;
    }

 private:
    template <class PublicRecord>
    [[nodiscard]] const auto& ViewOf() const
    {
        constexpr bool kIsIt[] = {std::is_same_v<PublicRecord, PublicRecords>...};
        constexpr std::size_t kPlace = [&] {
            std::size_t place = 0;
            while (!kIsIt[place]) ++place;
            return place;
        }();
        return std::get<kPlace>(views_);
    }

    std::tuple<decltype(See(As<PublicRecords>(), std::declval<const Model&>()))...> views_;
};

}  // namespace tamur
