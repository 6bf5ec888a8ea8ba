#include "host/findings/plain_text.h"

#include <tamur/utf8.h>

#include <algorithm>
#include <array>
#include <cstdio>

namespace tamur::host {
namespace {

struct Span {
    std::uint32_t first, last;
};

// Characters that a terminal or a viewer obeys instead of showing them.
constexpr Span kObeyed[] = {
    {0x0, 0x1F},      {0x7F, 0x9F},     {0xAD, 0xAD},       {0x61C, 0x61C},
    {0x180E, 0x180E}, {0x200B, 0x200F}, {0x2028, 0x202E},   {0x2060, 0x206F},
    {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB}, {0xE0000, 0xE007F},
};

bool IsObeyed(std::uint32_t c)
{
    return std::any_of(std::begin(kObeyed), std::end(kObeyed),
                       [c](const Span& span) { return c >= span.first && c <= span.last; });
}

void AppendVisibly(std::string& out, std::uint32_t c)
{
    if (!IsObeyed(c)) return utf::Append(out, c);
    std::array<char, 16> code;
    (void)std::snprintf(code.data(), code.size(), "\\u%04X", static_cast<unsigned>(c));
    out += code.data();
}

}  // namespace

std::string PlainText(std::string_view text, std::size_t longest)
{
    std::string out;
    for (std::size_t shown = 0; !text.empty(); ++shown) {
        if (shown == longest) return out + "…";
        AppendVisibly(out, utf::Take(text));
    }
    return out;
}

}  // namespace tamur::host
