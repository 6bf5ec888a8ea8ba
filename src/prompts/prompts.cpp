#include "prompts/prompts.h"

#include <charconv>

namespace tamur {
namespace {

struct Prompt {
    unsigned number;
    const OLECHAR* text;
};

constexpr Prompt kPrompts[] = {
#define PROMPT(number, text) {number, OLESTR(text)},
#include "prompts/prompts.def"
#undef PROMPT
};

constexpr std::size_t kPlaceholderLength = 2;  // "%s", "%d"

}  // namespace

int KdPrompts::GetPrompt(WideString& text, unsigned number, const OLECHAR* section, unsigned)
{
    text.clear();
    if (WideStringView(section) != kPromptSection) return 0;
    for (const Prompt& prompt : kPrompts) {
        if (prompt.number != number) continue;
        text = prompt.text;
        return 1;
    }
    return 0;
}

WideString FormatPrompt(unsigned number, WideStringView argument)
{
    WideString text;
    KdPrompts::GetPrompt(text, number, kPromptSection, 0);
    const std::size_t placeholder = text.find(OLECHAR{'%'});
    if (placeholder != text.npos) text.replace(placeholder, kPlaceholderLength, argument);
    return text;
}

WideString FormatPrompt(unsigned number, std::int32_t argument)
{
    char digits[12];
    const auto result = std::to_chars(digits, digits + sizeof digits, argument);
    return FormatPrompt(number, WideString(digits, static_cast<char*>(result.ptr)));
}

}  // namespace tamur
