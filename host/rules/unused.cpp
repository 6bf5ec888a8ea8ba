// What the tables hold and no element names.
#include "host/rules/rule.h"

namespace tamur::host {
namespace {

struct Used {
    std::vector<bool> materials, sections, releases;
};

void Mark(std::vector<bool>& used, Index place)
{
    if (place != kNone) used[place] = true;
}

Used UsedBy(const Structure& structure)
{
    Used used = {std::vector<bool>(structure.materials.size()),
                 std::vector<bool>(structure.sections.size()),
                 std::vector<bool>(structure.releases.size())};
    for (const Bar& bar : structure.bars) {
        Mark(used.materials, bar.material);
        Mark(used.sections, bar.startSection);
        Mark(used.sections, bar.endSection);
        Mark(used.releases, bar.startRelease);
        Mark(used.releases, bar.endRelease);
    }
    for (const Surface& surface : structure.surfaces) Mark(used.materials, surface.material);
    return used;
}

template <class Records>
void ReportUnused(const Records& records, const std::vector<bool>& used, Code code, Kind kind,
                  Report& report)
{
    for (Index rank = 0; rank < records.size(); ++rank) {
        if (used[rank] || records[rank].isDefault) continue;
        report.Add(code, {kind, rank, Finding::kNoIdentifier},
                   [&] { return Values{records[rank].name}; });
    }
}

}  // namespace

void CheckUnused(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    const Used used = UsedBy(structure);
    ReportUnused(structure.materials, used.materials, Code::kUnusedMaterial, Kind::kMaterial,
                 report);
    ReportUnused(structure.sections, used.sections, Code::kUnusedSection, Kind::kSection, report);
    ReportUnused(structure.releases, used.releases, Code::kUnusedRelease, Kind::kRelease, report);
}

}  // namespace tamur::host
