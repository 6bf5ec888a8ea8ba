// Texts of model files, which are in the ANSI code page, for people.
#pragma once

#include <string>
#include <string_view>

namespace tamur::host {

// What editors write at the start of files that they keep as UTF-8.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// The first characters of the text, enough of them to show; up to its first NUL.
[[nodiscard]] std::string AnsiToUtf8(std::string_view text);

// Whether the text has characters beyond ASCII and all of them are UTF-8.
[[nodiscard]] bool LooksLikeUtf8(std::string_view text);

}  // namespace tamur::host
