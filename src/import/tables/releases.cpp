#include "import/tables/releases.h"

#include "import/scan/format_scanner.h"

namespace tamur {

bool ReadReleases(Model& model, ModelFile& file)
{
    if (!file.FindSectionHeader(SectionHeader::kReleases)) return true;
    BarTables& tables = *model.barTables;
    for (Line line; file.ReadDataLine(line);) {
        std::string_view name, title, geometry, definition;
        Release release;
        FormatScanner columns(line.text);
        columns >> name >> release.rotations >> title >> geometry >> definition;
        if (columns.Failed()) file.Report(Finding::kUnreadableColumn);
        release.name = MakeText(tables.arena, name);
        release.title = MakeText(tables.arena, title);
        release.geometry = MakeText(tables.arena, geometry);
        release.definition = MakeText(tables.arena, definition);
        tables.releases.Append(release);
    }
    return true;
}

}  // namespace tamur
