#include "import/tables/section_geometries.h"

#include <algorithm>

#include "import/file/read_list.h"
#include "import/scan/stream_scanner.h"
#include "import/tables/section_name.h"

namespace tamur {
namespace {

// The pairs of all points come first and, for code 'S', the third values after them. So the points
// of which nothing is there are always the last.
List<double> ReadCoordinates(StreamScanner& tokens, const Outline& outline, Arena& arena)
{
    List<double> list;
    if (outline.pointCount <= 0) return list;
    const std::int32_t stride = outline.Stride();
    list.count = outline.pointCount * stride;
    const std::size_t most =
        std::min(static_cast<std::size_t>(outline.pointCount), MostValues(tokens.Left()));
    double* const values = arena.ReserveArray<double>(most * static_cast<std::size_t>(stride));
    double* end = values;
    for (; list.held < list.count; list.held += stride, end += stride) {
        double x = 0;
        tokens >> x;
        if (tokens.Failed()) break;
        std::fill(end, end + stride, 0.0);
        end[0] = x;
        tokens >> end[1];
    }
    arena.CommitArray(end);
    if (list.held > 0) list.values = values;
    if (outline.code != 'S') return list;
    for (double* point = values; point != end; point += stride) tokens >> point[2];
    return list;
}

const Outline* ReadOutline(StreamScanner& tokens, Arena& arena, const ModelFile& file)
{
    // Lines that end before it have it, too.
    static constexpr Outline kNoOutline = {
        .coordinates = {}, .radius = 0, .pointCount = 0, .code = 'F'};
    const bool isThere = !tokens.Failed();
    Outline outline = kNoOutline;
    std::int32_t count = 0;
    tokens >> count >> outline.code;
    outline.pointCount = ListCount(count, file);
    outline.coordinates = ReadCoordinates(tokens, outline, arena);
    if (tokens.Failed()) file.Report(Finding::kUnreadableColumn);
    const bool hasRadius = outline.code == 'C' || outline.code == 'F';
    // Often absent, so not worth a finding. After a list that was not read it cannot be found.
    if (hasRadius && outline.pointCount == count) tokens >> outline.radius;
    return isThere ? arena.Copy(outline) : &kNoOutline;
}

}  // namespace

bool ReadSectionGeometries(Model& model, ModelFile& file)
{
    BarTables& tables = *model.barTables;
    model.hasDefaultSection = false;
    tables.sections.Restart();
    if (file.FindSectionHeader(SectionHeader::kGeometries, SectionHeader::kGeometriesAccented)) {
        for (Line line; file.ReadDataLine(line);) {
            Section section;
            std::string_view name;
            StreamScanner tokens(line.text, line.end);
            tokens >> name;
            section.constants = ReadList<double>(tokens, Section::kConstants, tables.arena);
            section.outline = ReadOutline(tokens, tables.arena, file);
            const SectionName normalised = NormaliseSectionName(name);
            section.name = MakeText(tables.arena, normalised.text);
            section.isHShape = normalised.isHShape;
            tables.sections.all.Append(section);
        }
    }
    if (tables.sections.all.Size() == 0) AddDefaultSection(model);
    return true;
}

void AddDefaultSection(Model& model)
{
    BarTables& tables = *model.barTables;
    static constexpr double kConstants[Section::kConstants] = {
        0.06, 0.05, 0.05, 0.0004695, 0.00045, 0.0002, 0.002761, 0.003, 0.002, 0.003, 0.002};
    Section section;
    section.name = MakeText(tables.arena, "R20*30");
    section.constants = {kConstants, Section::kConstants, Section::kConstants};
    tables.sections.all.Append(section);
    model.hasDefaultSection = true;
}

}  // namespace tamur
