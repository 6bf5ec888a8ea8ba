// UTF-16, which the contract speaks, and UTF-8.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace tamur {

using WideString = std::basic_string<OLECHAR>;
using WideStringView = std::basic_string_view<OLECHAR>;

// What is no character in the one form (a lone surrogate, a malformed byte) becomes "?" in the
// other, as it does in the ANSI code page of Windows.
inline constexpr std::uint32_t kNoCharacter = '?';

namespace utf {

constexpr bool IsLead(std::uint32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool IsTrail(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

// Each takes one character off the front of `text`, which is not empty.
inline std::uint32_t Take(WideStringView& text)
{
    const std::uint32_t unit = text[0];
    const bool isPair = IsLead(unit) && text.size() > 1 && IsTrail(text[1]);
    const std::uint32_t pair =
        isPair ? 0x10000 + ((unit - 0xD800) << 10) + (text[1] - 0xDC00u) : kNoCharacter;
    text.remove_prefix(isPair ? 2 : 1);
    return IsLead(unit) || IsTrail(unit) ? pair : unit;
}
inline std::uint32_t Take(std::string_view& text)
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
    const bool isCharacter = taken == length && (lead < 0x80 || lead >= 0xC2) && lead < 0xF5 &&
                             c >= kSmallest[length] && c < 0x110000 && !IsLead(c) && !IsTrail(c);
    text.remove_prefix(isCharacter ? taken : 1);
    return isCharacter ? c : kNoCharacter;
}

inline void Append(std::string& out, std::uint32_t c)
{
    const auto append = [&out](std::uint32_t byte) { out += static_cast<char>(byte); };
    if (c < 0x80) return append(c);
    const int length = c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    append(((0xF00u >> length) & 0xFF) | (c >> (6 * (length - 1))));
    for (int i = length - 2; i >= 0; --i) append(0x80 | ((c >> (6 * i)) & 0x3F));
}
inline void Append(WideString& out, std::uint32_t c)
{
    if (c < 0x10000) {
        out += static_cast<OLECHAR>(c);
        return;
    }
    out += static_cast<OLECHAR>(0xD800 + ((c - 0x10000) >> 10));
    out += static_cast<OLECHAR>(0xDC00 + ((c - 0x10000) & 0x3FF));
}

}  // namespace utf

// UTF-16 as UTF-8.
[[nodiscard]] inline std::string ToUtf8(WideStringView text)
{
    std::string out;
    while (!text.empty()) utf::Append(out, utf::Take(text));
    return out;
}

// UTF-8 as UTF-16.
[[nodiscard]] inline WideString FromUtf8(std::string_view text)
{
    WideString out;
    while (!text.empty()) utf::Append(out, utf::Take(text));
    return out;
}

}  // namespace tamur
