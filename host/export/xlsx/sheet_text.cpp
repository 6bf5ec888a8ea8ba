#include "host/export/xlsx/sheet_text.h"

#include <tamur/utf8.h>

#include <algorithm>

namespace tamur::host {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

bool IsOfXml(std::uint32_t c)
{
    return c == '\t' || c == '\n' || (c >= 0x20 && c != 0xFFFE && c != 0xFFFF);
}

// "_x0041_"
bool IsNumberOfCharacter(std::string_view text)
{
    const auto isDigit = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    return text.size() >= 7 && text.starts_with("_x") && text[6] == '_' &&
           std::all_of(text.begin() + 2, text.begin() + 6, isDigit);
}

}  // namespace

SheetText SheetTextOf(std::string_view utf8, std::size_t longest)
{
    SheetText sheet;
    sheet.text.reserve(utf8.size());
    for (std::size_t units = 0; !utf8.empty();) {
        if (IsNumberOfCharacter(utf8)) sheet.text += "_x005F";
        std::uint32_t c = utf::Take(utf8);
        units += c < 0x10000 ? 1 : 2;
        if (units > longest) {
            sheet.isCut = true;
            break;
        }
        if (!IsOfXml(c)) {
            sheet.isReplaced = true;
            c = kReplacement;
        }
        utf::Append(sheet.text, c);
    }
    return sheet;
}

}  // namespace tamur::host
