#include "host/structure/crossings.h"

#include <algorithm>

#include "host/structure/contacts.h"

namespace tamur::host {
namespace {

// Without the ends, so that bars that meet at a joint do not meet here.
Box InnerBox(const Structure& structure, const Bar& bar)
{
    if (!bar.isUsable) return {};
    const Segment axis = structure.SegmentOf(bar);
    const double length = axis.Length();
    const double end = 3 * structure.tolerance;
    if (length <= 2 * end) return {};
    return BoxOf({axis.At(end / length), axis.At(1 - end / length)}).Grown(structure.tolerance);
}

bool HaveCommonPoint(const Structure& structure, Index first, Index second)
{
    const auto stops = structure.stops[second];
    return std::any_of(structure.stops[first].begin(), structure.stops[first].end(),
                       [&](const Stop& a) {
                           return std::any_of(stops.begin(), stops.end(),
                                              [&](const Stop& b) { return a.point == b.point; });
                       });
}

bool Cross(const Structure& structure, Index first, Index second)
{
    const Approach approach = ApproachOf(structure.SegmentOf(structure.bars[first]),
                                         structure.SegmentOf(structure.bars[second]));
    return !approach.isParallel && approach.distance <= structure.tolerance;
}

}  // namespace

Crossings FindCrossings(const Structure& structure)
{
    Crossings crossings;
    std::vector<Box> boxes;
    boxes.reserve(structure.bars.size());
    for (const Bar& bar : structure.bars) boxes.push_back(InnerBox(structure, bar));
    Budget budget = BudgetFor(structure.bars.size());
    const std::size_t most = 10000 + 8 * structure.bars.size();
    const auto look = [&](Index first, Index second) {
        if (crossings.bars.size() >= most || !Cross(structure, first, second)) return;
        const std::size_t steps = structure.stops[first].size() * structure.stops[second].size();
        if (!budget.Spend(steps) || HaveCommonPoint(structure, first, second)) return;
        crossings.bars.emplace_back(std::min(first, second), std::max(first, second));
    };
    const bool isDone = BoxTree(boxes).VisitPairs(budget, look);
    crossings.isComplete = isDone && !budget.IsSpent() && crossings.bars.size() < most;
    return crossings;
}

}  // namespace tamur::host
