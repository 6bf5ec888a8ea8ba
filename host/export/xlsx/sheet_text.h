// Texts as a sheet can hold them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamur::host {

struct SheetText {
    std::string text;
    bool isReplaced = false;  // characters that XML has not are U+FFFD
    bool isCut = false;
};

// At most `longest` UTF-16 units of it. What spreadsheets would take for a character's number
// ("_x0041_") is written so that they do not.
[[nodiscard]] SheetText SheetTextOf(std::string_view utf8, std::size_t longest);

}  // namespace tamur::host
