// Ends of bars that were probably meant to touch something.
#include <algorithm>
#include <optional>

#include "host/rules/rule.h"
#include "host/structure/contacts.h"

namespace tamur::host {
namespace {

struct Near {
    double distance;
    Member member;
};

class NearSearch {
 public:
    explicit NearSearch(const Structure& structure)
        : structure_(structure), budget_(BudgetFor(structure.corners.size()))
    {
        std::vector<Box> boxes;
        for (const Bar& bar : structure.bars) {
            boxes.push_back(bar.isUsable ? BoxOf(structure.SegmentOf(bar)) : Box());
        }
        for (const Surface& surface : structure.surfaces) {
            boxes.emplace_back();
            if (!surface.isPlane) continue;
            for (const Point& corner : OutlineOf(structure, surface)) boxes.back().Add(corner);
        }
        tree_ = BoxTree(boxes);
    }

    // The nearest member within reach that the bar does not touch; of equally near ones that with
    // the smallest identifier.
    std::optional<Near> Nearest(Index bar, Index end)
    {
        const Point place = structure_.points[end];
        Box around;
        around.Add(place);
        around = around.Grown(structure_.reach);
        std::optional<Near> nearest;
        const auto meets = [&](const Box& box) { return box.Meets(around); };
        (void)tree_.Visit(budget_, meets, [&](Index item) {
            const Member member = MemberOf(item);
            if (member == Member{Kind::kBar, bar}) return;
            const double distance = DistanceOf(member, place);
            if (distance > structure_.reach || IsTouched(bar, member)) return;
            if (!nearest || IsBefore({distance, member}, *nearest)) nearest = {distance, member};
        });
        return budget_.IsSpent() ? std::nullopt : nearest;
    }

 private:
    [[nodiscard]] Member MemberOf(Index item) const
    {
        const auto bars = static_cast<Index>(structure_.bars.size());
        return item < bars ? Member{Kind::kBar, item} : Member{Kind::kSurface, item - bars};
    }
    double DistanceOf(Member member, Point place)
    {
        const Element& element = structure_.ElementOf(member);
        if (member.kind == Kind::kBar) return Distance(structure_.SegmentOf(element), place);
        if (!budget_.Spend(element.cornerCount)) return Box::kFar;
        const std::vector<Point> outline = OutlineOf(structure_, element);
        const Polygon polygon(outline);
        if (!polygon.Contains(place, structure_.reach)) return Box::kFar;
        double distance = std::abs(polygon.ThePlane().DistanceTo(place));
        if (polygon.Contains(
                place - polygon.ThePlane().normal * polygon.ThePlane().DistanceTo(place),
                structure_.tolerance)) {
            return distance;
        }
        distance = Box::kFar;
        for (std::size_t i = 0; i < polygon.Size(); ++i) {
            distance = std::min(distance, Distance(polygon.Edge(i), place));
        }
        return distance;
    }
    bool IsTouched(Index bar, Member member)
    {
        const auto stops = structure_.stops[bar];
        return std::any_of(stops.begin(), stops.end(), [&](const Stop& stop) {
            const auto members = structure_.membersAt[stop.point];
            return !budget_.Spend(members.size()) ||
                   std::find(members.begin(), members.end(), member) != members.end();
        });
    }
    [[nodiscard]] bool IsBefore(const Near& a, const Near& b) const
    {
        if (std::abs(a.distance - b.distance) > structure_.tolerance / 1000) {
            return a.distance < b.distance;
        }
        return structure_.ElementOf(a.member).identifier <
               structure_.ElementOf(b.member).identifier;
    }

    const Structure& structure_;
    BoxTree tree_;
    Budget budget_;
};

// The end touches nothing else, and nothing holds it.
bool IsFree(const Model& model, Index end)
{
    return model.structure.membersAt[end].size() == 1 && !model.isSupported[end];
}

struct Pair {
    Index bar;
    Near near;
};

}  // namespace

void CheckNearEnds(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    if (!structure.isComplete) return;
    std::optional<NearSearch> search;
    std::vector<Pair> pairs;
    for (Index i = 0; i < structure.bars.size(); ++i) {
        const Bar& bar = structure.bars[i];
        if (!bar.isUsable || bar.length <= structure.reach) continue;
        for (const Index end : {bar.start, bar.end}) {
            if (!IsFree(model, end)) continue;
            if (!search) search.emplace(structure);
            auto near = search->Nearest(i, end);
            if (!near) continue;
            Index about = i;
            // Two bars that miss each other are one finding.
            if (near->member.kind == Kind::kBar &&
                structure.bars[near->member.index].identifier < bar.identifier) {
                std::swap(about, near->member.index);
            }
            pairs.push_back({about, *near});
        }
    }
    std::sort(pairs.begin(), pairs.end(), [](const Pair& a, const Pair& b) {
        if (a.bar != b.bar) return a.bar < b.bar;
        if (a.near.member.kind != b.near.member.kind)
            return a.near.member.kind < b.near.member.kind;
        if (a.near.member.index != b.near.member.index) {
            return a.near.member.index < b.near.member.index;
        }
        return a.near.distance < b.near.distance;
    });
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto& [bar, near] = pairs[i];
        if (i > 0 && pairs[i - 1].bar == bar && pairs[i - 1].near.member == near.member) continue;
        const bool isBar = near.member.kind == Kind::kBar;
        report.Add(isBar ? Code::kEndNearBar : Code::kEndNearSurface, structure.bars[bar],
                   [&, distance = near.distance, member = near.member] {
                       return Values{LengthText(distance),
                                     std::to_string(structure.ElementOf(member).identifier)};
                   });
    }
}

}  // namespace tamur::host
