#include "host/file/texts.h"

#include <tamur/utf8.h>

#include <algorithm>

#include "platform/platform.h"

namespace tamur::host {

std::string AnsiToUtf8(std::string_view text)
{
    constexpr std::size_t kMost = 200;
    OLECHAR wide[kMost];
    const std::size_t size = std::min({text.size(), text.find('\0'), kMost});
    return ToUtf8({wide, platform::WidenAnsi(text.data(), size, wide)});
}

bool LooksLikeUtf8(std::string_view text)
{
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    text = text.substr(0, text.find('\0'));
    if (std::all_of(text.begin(), text.end(), isAscii)) return false;
    while (!text.empty()) {
        const bool isPlainMark = text[0] == '?';
        if (utf::Take(text) == kNoCharacter && !isPlainMark) return false;
    }
    return true;
}

}  // namespace tamur::host
