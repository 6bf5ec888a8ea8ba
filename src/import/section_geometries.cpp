#include "import/section_geometries.h"

#include "import/scan/stream_scanner.h"
#include "import/section_name.h"

namespace tamur {
namespace {

// For code 'S' the pairs of all points come first and the third values after them.
void ReadCoordinates(StreamScanner& tokens, double* coordinates, const Outline& outline)
{
    double* const end = coordinates + outline.CoordinateCount();
    const std::int32_t stride = outline.Stride();
    for (double* point = coordinates; point != end; point += stride) tokens >> point[0] >> point[1];
    if (outline.code != 'S') return;
    for (double* point = coordinates; point != end; point += stride) tokens >> point[2];
}

void ReadOutline(StreamScanner& tokens, const Line& line, Model& model, ModelFile& file,
                 Outline& outline)
{
    outline.code = 'F';
    tokens >> outline.pointCount >> outline.code;
    if (outline.pointCount < 0 || !line.Holds(outline.pointCount)) {
        file.Report(Finding::kListCountIgnored);
        outline.pointCount = 0;
    }
    if (outline.pointCount > 0) {
        double* const coordinates =
            model.arena.Array<double>(static_cast<std::size_t>(outline.CoordinateCount()));
        ReadCoordinates(tokens, coordinates, outline);
        outline.coordinates = coordinates;
    }
    if (tokens.Failed()) file.Report(Finding::kUnreadableColumn);
    // Often absent, so not worth a finding.
    if (outline.code == 'C' || outline.code == 'F') tokens >> outline.radius;
}

}  // namespace

bool ReadSectionGeometries(Model& model, ModelFile& file)
{
    model.hasDefaultSection = false;
    model.sections.Restart();
    if (file.FindSectionHeader(SectionHeader::kGeometries, SectionHeader::kGeometriesAccented)) {
        for (Line line; file.ReadDataLine(line);) {
            Section section;
            std::string_view name;
            StreamScanner tokens(line.text, line.end);
            tokens >> name >> section.constants;
            ReadOutline(tokens, line, model, file, section.outline);
            const SectionName normalised = NormaliseSectionName(name);
            section.name = MakeText(model.arena, normalised.text);
            section.isHShape = normalised.isHShape;
            model.sections.all.Append(section);
        }
    }
    if (model.sections.all.Size() == 0) AddDefaultSection(model);
    return true;
}

void AddDefaultSection(Model& model)
{
    model.sections.all.Append({.name = MakeText(model.arena, "R20*30"),
                               .constants = {0.06, 0.05, 0.05, 0.0004695, 0.00045, 0.0002, 0.002761,
                                             0.003, 0.002, 0.003, 0.002},
                               .isHShape = false,
                               .outline = {}});
    model.hasDefaultSection = true;
}

}  // namespace tamur
