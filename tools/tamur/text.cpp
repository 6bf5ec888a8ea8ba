#include "text.h"

#include <cstdint>

namespace tamur::tool {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsLeadSurrogate(std::uint32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}
bool IsTrailSurrogate(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

void AppendUtf8(std::string& out, std::uint32_t c)
{
    const auto append = [&out](std::uint32_t byte) { out += static_cast<char>(byte); };
    const auto appendTail = [&](int shift) { append(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        append(c);
        return;
    }
    if (c < 0x800) {
        append(0xC0 | (c >> 6));
    } else {
        if (c < 0x10000) {
            append(0xE0 | (c >> 12));
        } else {
            append(0xF0 | (c >> 18));
            appendTail(12);
        }
        appendTail(6);
    }
    appendTail(0);
}

void AppendUtf16(WideString& out, std::uint32_t c)
{
    if (c < 0x10000) {
        out += static_cast<OLECHAR>(c);
        return;
    }
    out += static_cast<OLECHAR>(0xD800 + ((c - 0x10000) >> 10));
    out += static_cast<OLECHAR>(0xDC00 + ((c - 0x10000) & 0x3FF));
}

// Takes one character off the front of `text`.
std::uint32_t TakeCharacter(std::string_view& text)
{
    const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const std::uint32_t lead = byte(0);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    std::uint32_t c = length == 1 ? lead : lead & (0xFFu >> (length + 1));
    std::size_t taken = 1;
    while (taken < length && taken < text.size() && (byte(taken) & 0xC0) == 0x80) {
        c = (c << 6) | (byte(taken++) & 0x3Fu);
    }
    text.remove_prefix(taken);
    const bool isCharacter = taken == length && c >= kSmallest[length] && c < 0x110000 &&
                             !IsLeadSurrogate(c) && !IsTrailSurrogate(c);
    return isCharacter ? c : kReplacement;
}

}  // namespace

std::string ToUtf8(WideStringView text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t c = text[i];
        if (IsLeadSurrogate(c) && i + 1 < text.size() && IsTrailSurrogate(text[i + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00u);
        } else if (IsLeadSurrogate(c) || IsTrailSurrogate(c)) {
            c = kReplacement;
        }
        AppendUtf8(out, c);
    }
    return out;
}

WideString FromUtf8(std::string_view text)
{
    WideString out;
    while (!text.empty()) AppendUtf16(out, TakeCharacter(text));
    return out;
}

}  // namespace tamur::tool
