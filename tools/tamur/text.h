// The component speaks UTF-16, the command line UTF-8.
#pragma once

#include <tamur/records.h>

#include <string>
#include <string_view>

namespace tamur::tool {

using WideString = std::basic_string<OLECHAR>;

// Broken input becomes the replacement character, so that a text is always shown.
[[nodiscard]] std::string ToUtf8(WideStringView text);
[[nodiscard]] WideString FromUtf8(std::string_view text);

}  // namespace tamur::tool
