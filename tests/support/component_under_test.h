// The component that the tests drive, loaded as a host loads it.
#pragma once

#include <tamur/ranges.h>

#include <string>
#include <string_view>
#include <type_traits>

namespace tamur::test {

// Loaded once, from the place that the build gives.
Component& TheComponent();

inline ComPtr<ITAMURStructureReader> NewReader()
{
    return TheComponent().CreateReader();
}

template <class T, class... Others>
inline constexpr bool IsOneOf = (std::is_same_v<T, Others> || ...);

// A rank outside the tables of these records ends the process instead of giving E_FAIL.
template <class PublicRecord>
inline constexpr bool kRankEndsTheProcess =
    IsOneOf<PublicRecord, TMRSurfacique, TMROuverture, TMRParoi, TMRNode>;

// Conversions for messages and expectations.
inline std::string Utf8(WideStringView text)
{
    return ToUtf8(text);
}
inline std::string Utf8(BSTR text)
{
    return ToUtf8(ViewOf(text));
}
inline WideString Wide(std::string_view utf8)
{
    return FromUtf8(utf8);
}

}  // namespace tamur::test
