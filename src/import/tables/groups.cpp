#include "import/tables/groups.h"

#include <algorithm>
#include <string>

#include "import/scan/format_scanner.h"
#include "import/tables/switch_character.h"

namespace tamur {
namespace {

// Titles are one word in the file: "_" means a blank.
Text MakeTitle(Arena& arena, std::string_view word)
{
    std::string title(word);
    std::replace(title.begin(), title.end(), '_', ' ');
    return MakeText(arena, title.empty() ? "-" : title);
}

}  // namespace

bool ReadGroups(Model& model, ModelFile& file)
{
    model.groups.Restart();
    if (!file.FindSectionHeader(SectionHeader::kGroups)) return true;
    for (Line line; file.ReadDataLine(line);) {
        std::int32_t elementKind = 0, typeCode = 0;
        std::string_view title, display;
        Group group;
        FormatScanner columns(line.text);
        columns >> elementKind >> group.number >> typeCode >> title >> display;
        if (columns.Failed()) file.Report(Finding::kUnreadableColumn);
        group.elementKind = static_cast<std::uint8_t>(elementKind);
        group.typeCode = static_cast<std::uint8_t>(typeCode);
        group.title = MakeTitle(model.arena, title);
        group.isDisplayed = !display.empty() && IsOn(display[0]);
        model.groups.Append(group);
    }
    model.groups.Finish();
    return true;
}

}  // namespace tamur
