// Joints that nothing holds against turning.
#include "host/rules/rule.h"

namespace tamur::host {
namespace {

constexpr std::uint8_t kAllRotations = 7;

struct Joint {
    Index bars = 0;
    Index first = kNone;  // the bar with the smallest identifier
    bool isHeld = false;
};

void AddEnd(const Structure& structure, Joint& joint, Index index, std::uint8_t released)
{
    const Bar& bar = structure.bars[index];
    ++joint.bars;
    // Bars of a truss turn nothing, and are calculated without rotations.
    if (bar.IsTruss() || (released & kAllRotations) != kAllRotations) joint.isHeld = true;
    if (joint.first == kNone || bar.identifier < structure.bars[joint.first].identifier) {
        joint.first = index;
    }
}

}  // namespace

void CheckJoints(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    std::vector<Joint> joints(structure.points.size());
    for (Index i = 0; i < structure.bars.size(); ++i) {
        const Bar& bar = structure.bars[i];
        if (!bar.isUsable || bar.start == bar.end) continue;
        AddEnd(structure, joints[bar.start], i, bar.releasedAtStart);
        AddEnd(structure, joints[bar.end], i, bar.releasedAtEnd);
    }
    for (Index point = 0; point < joints.size(); ++point) {
        const Joint& joint = joints[point];
        if (joint.bars < 2 || joint.isHeld || model.isSupported[point]) continue;
        // A surface, or a bar that passes through, holds it.
        if (structure.membersAt[point].size() != joint.bars) continue;
        report.Add(Code::kJointSpins, structure.bars[joint.first],
                   [&] { return Values{std::to_string(joint.bars)}; });
    }
}

}  // namespace tamur::host
