// Model records into the host's records, whole or not at all.
#pragma once

#include <tamur/records.h>

#include <type_traits>

#include "TAMURReader.h"
#include "accessors/host_copy.h"

namespace tamur {

// Whether a record refers to no other.
template <class Record, class PublicRecord>
concept IsWhole = requires(const Record& from, HostCopy& host, PublicRecord& to)
{
    Copy(from, host, to);
};

// Fills a host's record; what it held is overwritten, not freed. When memory runs out the record is
// left empty and `failure` is the result.
template <class Record, class PublicRecord, class... Referred>
HRESULT Deliver(HRESULT failure, PublicRecord* to, const Record& from,
                const Referred&... tables) noexcept
{
    HostCopy host;
    Copy(from, tables..., host, *to);
    if (!host.HasFailed()) return S_OK;
    VisitFields(*to, FieldFreer());
    *to = {};
    return failure;
}

// Fills a host's record with the one that a view has at that rank.
template <class View, class PublicRecord>
HRESULT DeliverFrom(const View& view, LONG rank, PublicRecord* to) noexcept
{
    const auto& from = view.At(rank);
    if constexpr (IsWhole<std::remove_cvref_t<decltype(from)>, PublicRecord>) {
        return Deliver(View::kCopyFailure, to, from);
    } else {
        return Deliver(View::kCopyFailure, to, from, view.Referred());
    }
}

}  // namespace tamur
