#include "import/elements/bar.h"

#include "import/elements/references.h"

namespace tamur {
namespace {

// The file counts offsets from 1.
std::uint8_t OffsetOf(std::int32_t code)
{
    return static_cast<std::uint8_t>(code >= 1 && code <= 9 ? code - 1 : FE__CENTRE_CENTRE);
}

// A missing section is remarked upon and replaced by the first.
std::uint32_t ResolveSection(std::int32_t number, const Model& model, const ModelFile& file,
                             Bar& bar)
{
    if (number == 0) {
        bar.remarks.missingSection = true;
        number = 1;
    }
    const Generation<Section>& sections = model.barTables->sections;
    return ResolveReference(model.hasDefaultSection ? 1 : number, sections.first, sections.Size(),
                            file, Finding::kSectionReplaced);
}

std::uint32_t ResolveRelease(std::int32_t number, const Model& model, const ModelFile& file)
{
    return ResolveReference(number, 0, model.barTables->releases.Size(), file,
                            Finding::kReleaseReplaced);
}

// A section with an outline code is drawn lying: the bar is turned by a quarter. The code of the
// start section alone decides.
void TurnOutlinedSection(const Model& model, Bar& bar)
{
    if (bar.startSection == 0) return;
    if (model.barTables->sections.all[bar.startSection - 1].outline->code == 0) return;
    bar.angle = static_cast<std::int32_t>((std::int64_t{bar.angle} + 90) % 360);
    bar.remarks.turnedSection = true;
}

}  // namespace

void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile& file, Bar& bar)
{
    std::int32_t type = 0, material = 0, offset = 0;
    std::int32_t startSection = 0, endSection = 0, startRelease = 0, endRelease = 0;
    tokens >> bar.group >> type >> bar.orientationNode >> bar.angle >> bar.meshStep >> material >>
        startSection >> endSection >> startRelease >> endRelease >> offset;
    // From version 12.2A on five reals follow. They mean nothing here and nothing follows
    // them, so they are left unread.
    bar.type = static_cast<std::uint8_t>(type >= 1 && type <= 5 ? type : 0);
    bar.offset = OffsetOf(offset);
    bar.startSection = ResolveSection(startSection, model, file, bar);
    bar.endSection = ResolveSection(endSection, model, file, bar);
    bar.startRelease = ResolveRelease(startRelease, model, file);
    bar.endRelease = ResolveRelease(endRelease, model, file);
    bar.material = ResolveMaterial(material, model, file);
    TurnOutlinedSection(model, bar);
}

}  // namespace tamur
