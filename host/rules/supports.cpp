// Whether the structure stands on something.
#include <algorithm>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

struct Part {
    Index members = 0;
    bool isSupported = false;
    About first;
};

void AddMember(std::vector<Part>& parts, const Structure& structure, const Element& member)
{
    if (!member.isUsable || member.cornerCount == 0) return;
    const Index number = structure.PartOf(member);
    if (number == kNone) return;
    Part& part = parts[number];
    if (part.members++ == 0 || member.identifier < part.first.identifier) part.first = member;
}

std::vector<Part> PartsOf(const Model& model)
{
    const Structure& structure = model.structure;
    std::vector<Part> parts(structure.partCount);
    for (const Bar& bar : structure.bars) AddMember(parts, structure, bar);
    for (const Surface& surface : structure.surfaces) AddMember(parts, structure, surface);
    for (Index point = 0; point < structure.points.size(); ++point) {
        if (model.isSupported[point]) parts[structure.partOf[point]].isSupported = true;
    }
    return parts;
}

bool HoldsNothing(const Support& support)
{
    if (support.condition == SupportCondition::kVoid) return true;
    return support.condition == SupportCondition::kElastic &&
           std::all_of(support.stiffness.begin(), support.stiffness.end(),
                       [](double value) { return value == 0; });
}

}  // namespace

void CheckSupportOfParts(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    if (structure.bars.empty() && structure.surfaces.empty()) return;
    if (structure.supports.empty()) return report.Add(Code::kNothingSupported, {});
    if (!structure.isComplete) return;
    const std::vector<Part> parts = PartsOf(model);
    const bool isAny =
        std::any_of(parts.begin(), parts.end(), [](const Part& part) { return part.isSupported; });
    // Supports that all miss the structure have findings of their own.
    if (!isAny) return;
    for (const Part& part : parts) {
        if (part.isSupported || part.members == 0) continue;
        report.Add(Code::kPartWithoutSupport, part.first,
                   [&] { return Values{std::to_string(part.members)}; });
    }
}

void CheckSupports(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    for (std::size_t i = 0; i < structure.supports.size(); ++i) {
        const Support& support = structure.supports[i];
        if (!support.isUsable) continue;
        if (structure.heldPoints[i].empty()) {
            if (structure.isComplete) report.Add(Code::kSupportOffStructure, support);
        } else if (HoldsNothing(support)) {
            report.Add(Code::kSupportHoldsNothing, support);
        }
    }
}

void CheckSearch(const Model& model, Report& report)
{
    if (model.structure.isComplete && model.crossings.isComplete) return;
    report.Add(Code::kSearchEndedEarly, {});
}

}  // namespace tamur::host
