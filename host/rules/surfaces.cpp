// Outlines of surfaces, and openings in them.
#include <algorithm>
#include <optional>

#include "host/rules/rule.h"
#include "host/structure/contacts.h"

namespace tamur::host {
namespace {

// Whether two edges that are not neighbours meet.
bool CrossesItself(const Polygon& polygon, double tolerance)
{
    const auto count = static_cast<Index>(polygon.Size());
    std::vector<Box> boxes;
    for (Index i = 0; i < count; ++i) boxes.push_back(BoxOf(polygon.Edge(i)).Grown(tolerance / 2));
    Budget budget = BudgetFor(count);
    bool isCrossed = false;
    (void)BoxTree(boxes).VisitPairs(budget, [&](Index a, Index b) {
        const Index gap = a < b ? b - a : a - b;
        if (isCrossed || gap <= 1 || gap == count - 1) return;
        const Approach approach = ApproachOf(polygon.Edge(a), polygon.Edge(b));
        // Edges may lie on each other, and corners on edges: so a hole is drawn in one line.
        const auto isInner = [](double place) { return place > 1e-6 && place < 1 - 1e-6; };
        isCrossed = !approach.isParallel && approach.distance <= tolerance &&
                    isInner(approach.onFirst) && isInner(approach.onSecond);
    });
    return isCrossed;
}

void CheckOutline(const Structure& structure, const Surface& surface, Report& report)
{
    if (!surface.isUsable) return;
    if (surface.isPlane && surface.isConvex) return;
    const std::vector<Point> outline = OutlineOf(structure, surface);
    const Polygon polygon(outline);
    // A figure of eight has no area either; to say that it crosses itself helps more.
    if (polygon.Size() > 3 && CrossesItself(polygon, structure.tolerance)) {
        report.Add(Code::kOutlineCrossesItself, surface);
    } else if (!surface.isPlane) {
        report.Add(Code::kNoArea, surface);
    }
}

void CheckOutlineOfLoad(const Structure& structure, const Load& load, Report& report)
{
    if (!load.isUsable || load.cornerCount <= 3) return;
    const std::vector<Point> outline = OutlineOf(structure, load);
    const Polygon polygon(outline);
    if (!polygon.IsConvex() && CrossesItself(polygon, structure.tolerance)) {
        report.Add(Code::kOutlineCrossesItself, load);
    }
}

bool IsOn(const Structure& structure, Index point, Member member, Budget& budget)
{
    const auto members = structure.membersAt[point];
    return budget.Spend(members.size()) &&
           std::find(members.begin(), members.end(), member) != members.end();
}

bool IsInPlaneOf(const Structure& structure, const Surface& opening, const Surface& surface)
{
    const auto corners = structure.CornersOf(opening);
    return std::all_of(corners.begin(), corners.end(), [&](Index corner) {
        return std::abs(surface.plane.DistanceTo(structure.points[corner])) <=
               structure.tolerance + surface.outOfPlane;
    });
}

// Of the surfaces in its plane that which most corners of the opening are on, of several that with
// the smallest identifier.
std::optional<Index> SurfaceUnder(const Structure& structure, const Surface& opening,
                                  Budget& budget)
{
    std::optional<Index> best;
    std::ptrdiff_t most = 0;
    const auto corners = structure.CornersOf(opening);
    for (const Index corner : corners) {
        for (const Member& member : structure.membersAt[corner]) {
            if (member.kind != Kind::kSurface) continue;
            if (!budget.Spend(corners.size())) return best;
            if (!IsInPlaneOf(structure, opening, structure.surfaces[member.index])) continue;
            const auto on = std::count_if(corners.begin(), corners.end(), [&](Index other) {
                return IsOn(structure, other, member, budget);
            });
            const bool isBetter =
                on > most || (on == most && structure.surfaces[member.index].identifier <
                                                structure.surfaces[*best].identifier);
            if (isBetter) best = member.index;
            most = std::max(most, on);
        }
    }
    return best;
}

// Whether an edge between corners on a surface with a notch leaves it.
bool LeavesSurface(const Structure& structure, const Surface& opening, Budget& budget)
{
    const Surface& surface = structure.surfaces[opening.surface];
    if (surface.isConvex) return false;
    const std::vector<Point> own = OutlineOf(structure, opening);
    const std::vector<Point> around = OutlineOf(structure, surface);
    if (!budget.Spend(own.size() * around.size())) return false;
    const Polygon inner(own), outer(around);
    for (std::size_t i = 0; i < inner.Size(); ++i) {
        for (std::size_t k = 0; k < outer.Size(); ++k) {
            const Approach approach = ApproachOf(inner.Edge(i), outer.Edge(k));
            const auto isInner = [](double place) { return place > 1e-6 && place < 1 - 1e-6; };
            if (!approach.isParallel && approach.distance <= structure.tolerance &&
                isInner(approach.onFirst) && isInner(approach.onSecond)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

void CheckOutlines(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    for (const Surface& surface : structure.surfaces) {
        CheckOutline(structure, surface, report);
        if (!surface.isPlane || surface.outOfPlane <= structure.tolerance) continue;
        report.Add(Code::kSurfaceNotPlane, surface,
                   [&] { return Values{LengthText(surface.outOfPlane)}; });
    }
    for (const Surface& opening : structure.openings) CheckOutline(structure, opening, report);
    for (const Load& load : structure.loads) {
        if (load.kind == Kind::kSurfaceLoad) CheckOutlineOfLoad(structure, load, report);
    }
}

void CheckOpenings(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    if (!structure.isComplete) return;
    Budget budget = BudgetFor(structure.corners.size());
    for (const Surface& opening : structure.openings) {
        if (!opening.isPlane) continue;
        std::optional<Index> crossed;
        if (opening.surface == kNone) {
            crossed = SurfaceUnder(structure, opening, budget);
            if (budget.IsSpent()) return;
            if (!crossed) report.Add(Code::kOpeningOutside, opening);
        } else if (LeavesSurface(structure, opening, budget)) {
            crossed = opening.surface;
        }
        if (!crossed) continue;
        report.Add(Code::kOpeningCrossesEdge, opening,
                   [&] { return Values{std::to_string(structure.surfaces[*crossed].identifier)}; });
    }
}

}  // namespace tamur::host
