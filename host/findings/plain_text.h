// Text of a file for people's eyes: on a terminal it must not do anything.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamur::host {

inline constexpr std::size_t kLongestPlainText = 80;

// UTF-8 on one line. Control characters (those of ASCII and after, DEL), separators of lines, marks
// of direction and what is not visible are shown as "\u001B"; bytes that are no UTF-8 as "?". What
// is longer than `longest` characters is cut there and ends with "…".
[[nodiscard]] std::string PlainText(std::string_view text, std::size_t longest = kLongestPlainText);

}  // namespace tamur::host
