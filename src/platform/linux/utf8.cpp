#include "platform/linux/utf8.h"

namespace tamur::platform {
namespace {

constexpr char32_t kUnmappable = U'?';

bool IsSurrogate(char32_t c)
{
    return c >= 0xD800 && c <= 0xDFFF;
}

void AppendUtf8(std::string& out, char32_t c)
{
    const auto continuation = [&](int shift) {
        out += static_cast<char>(0x80 | ((c >> shift) & 0x3F));
    };
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        continuation(0);
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        continuation(6);
        continuation(0);
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

// Decodes the sequence at `at` and moves past it; malformed bytes go one at a time.
char32_t DecodeUtf8(const std::string& text, std::size_t& at)
{
    const unsigned char lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80) return lead;
    const int length = lead >= 0xF0 && lead < 0xF8 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || lead >= 0xF8 || at + static_cast<std::size_t>(length) - 1 > text.size()) {
        return kUnmappable;
    }
    char32_t c = lead & (0x7F >> length);
    for (int i = 0; i < length - 1; ++i) {
        const unsigned char next =
            static_cast<unsigned char>(text[at + static_cast<std::size_t>(i)]);
        if ((next & 0xC0) != 0x80) return kUnmappable;
        c = (c << 6) | (next & 0x3F);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kSmallest[length] || c > 0x10FFFF || IsSurrogate(c)) return kUnmappable;
    at += static_cast<std::size_t>(length) - 1;
    return c;
}

}  // namespace

std::string ToUtf8(const OLECHAR* text)
{
    std::string out;
    for (; *text != 0; ++text) {
        char32_t c = *text;
        if (c >= 0xD800 && c < 0xDC00 && text[1] >= 0xDC00 && text[1] < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[1] - 0xDC00u);
            ++text;
        }
        AppendUtf8(out, IsSurrogate(c) ? kUnmappable : c);
    }
    return out;
}

WideString FromUtf8(const std::string& text)
{
    WideString out;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t c = DecodeUtf8(text, at);
        if (c < 0x10000) {
            out += static_cast<OLECHAR>(c);
        } else {
            out += static_cast<OLECHAR>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<OLECHAR>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return out;
}

}  // namespace tamur::platform
