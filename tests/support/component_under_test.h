// The component that the tests drive, loaded as a host loads it.
#pragma once

#include <tamur/ranges.h>

#include <string>
#include <string_view>

namespace tamur::test {

// Loaded once, from the place that the build gives.
Component& TheComponent();

inline ComPtr<ITAMURStructureReader> NewReader()
{
    return TheComponent().CreateReader();
}

// Conversions for messages and expectations.
std::string Utf8(WideStringView text);
inline std::string Utf8(BSTR text)
{
    return Utf8(ViewOf(text));
}
std::basic_string<OLECHAR> Wide(std::string_view utf8);

}  // namespace tamur::test
