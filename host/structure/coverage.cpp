#include "host/structure/coverage.h"

#include <algorithm>
#include <optional>

#include "host/structure/contacts.h"

namespace tamur::host {
namespace {

std::vector<Box> BoxesOfBars(const Structure& structure)
{
    std::vector<Box> boxes;
    boxes.reserve(structure.bars.size());
    for (const Bar& bar : structure.bars) {
        boxes.push_back(bar.isUsable ? BoxOf(structure.SegmentOf(bar)) : Box());
    }
    return boxes;
}

std::vector<Box> BoxesOfSurfaces(const Structure& structure)
{
    std::vector<Box> boxes;
    boxes.reserve(structure.surfaces.size() + structure.walls.size());
    for (const auto* list : {&structure.surfaces, &structure.walls}) {
        for (const Surface& surface : *list) {
            boxes.emplace_back();
            if (!surface.isPlane) continue;
            for (const Index corner : structure.CornersOf(surface)) {
                boxes.back().Add(structure.points[corner]);
            }
        }
    }
    return boxes;
}

// Where the line, without ends, meets the edge as both are seen in the plane of the polygon.
std::optional<double> PlaceOfCrossing(const Polygon& polygon, const Segment& line,
                                      const Segment& edge)
{
    const PlanePoint a = polygon.Flat(line.start), b = polygon.Flat(line.end);
    const PlanePoint c = polygon.Flat(edge.start), d = polygon.Flat(edge.end);
    const double cross = (b.u - a.u) * (d.v - c.v) - (b.v - a.v) * (d.u - c.u);
    if (cross == 0) return std::nullopt;
    const double onLine = ((c.u - a.u) * (d.v - c.v) - (c.v - a.v) * (d.u - c.u)) / cross;
    const double onEdge = ((c.u - a.u) * (b.v - a.v) - (c.v - a.v) * (b.u - a.u)) / cross;
    if (onEdge < 0 || onEdge > 1) return std::nullopt;
    return onLine;
}

// Folds of a roof lie as each other, a floor and a wall do not.
bool LieAlike(const Polygon& polygon, const Surface& surface)
{
    constexpr double kAlike = 0.7;  // 45 degrees
    return polygon.Area() == 0 ||
           std::abs(Dot(polygon.ThePlane().normal, surface.plane.normal)) >= kAlike;
}

}  // namespace

CoverageSearch::CoverageSearch(const Structure& structure)
    : structure_(structure),
      bars_(BoxesOfBars(structure)),
      surfaces_(BoxesOfSurfaces(structure)),
      budget_(BudgetFor(structure.corners.size()))
{
}

void CoverageSearch::AddBar(const Segment& line, Index bar)
{
    const Segment axis = structure_.SegmentOf(structure_.bars[bar]);
    const Point along = line.end - line.start;
    const double square = Dot(along, along);
    const double a = Dot(axis.start - line.start, along) / square;
    const double b = Dot(axis.end - line.start, along) / square;
    const Interval common = {std::max(0.0, std::min(a, b)), std::min(1.0, std::max(a, b))};
    if ((common.to - common.from) * line.Length() <= structure_.tolerance) return;
    const double tolerance = structure_.tolerance;
    if (Distance(axis, line.At(common.from)) > tolerance) return;
    if (Distance(axis, line.At(common.to)) > tolerance) return;
    intervals_.push_back(common);
}

bool CoverageSearch::AddSurface(const Segment& line, const Surface& surface)
{
    const double tolerance = structure_.tolerance;
    if (std::abs(surface.plane.DistanceTo(line.start)) > tolerance) return false;
    if (std::abs(surface.plane.DistanceTo(line.end)) > tolerance) return false;
    const std::vector<Point> outline = OutlineOf(structure_, surface);
    const Polygon polygon(outline);
    places_ = {0, 1};
    const double length = line.Length();
    for (std::size_t i = 0; i < polygon.Size(); ++i) {
        const Segment edge = polygon.Edge(i);
        const double foot = FootOn(line, edge.start);
        if (Length(line.At(foot) - edge.start) <= tolerance) places_.push_back(foot);
        const auto place = PlaceOfCrossing(polygon, line, edge);
        if (place && *place > 0 && *place < 1) places_.push_back(*place);
    }
    std::sort(places_.begin(), places_.end());
    bool isFound = false;
    for (std::size_t i = 1; i < places_.size(); ++i) {
        const Interval piece = {places_[i - 1], places_[i]};
        if ((piece.to - piece.from) * length <= tolerance) continue;
        if (!budget_.Spend(polygon.Size())) return isFound;
        if (!polygon.Contains(line.At((piece.from + piece.to) / 2), tolerance)) continue;
        intervals_.push_back(piece);
        isFound = true;
    }
    return isFound;
}

double CoverageSearch::CoveredShare(double gap)
{
    std::sort(intervals_.begin(), intervals_.end(),
              [](const Interval& a, const Interval& b) { return a.from < b.from; });
    double covered = 0, end = 0;
    for (const Interval& interval : intervals_) {
        if (interval.from <= end + gap) {
            covered += std::max(0.0, interval.to - end);
        } else {
            covered += interval.to - interval.from;
        }
        end = std::max(end, interval.to);
    }
    return covered >= 1 - gap ? 1 : covered;
}

Coverage CoverageSearch::Cover(const Segment& line, const Polygon* edgeOf)
{
    Coverage coverage;
    const double length = line.Length();
    if (length <= structure_.tolerance) return coverage;
    intervals_.clear();
    const Box around = BoxOf(line).Grown(structure_.tolerance);
    const auto meets = [&](const Box& box) {
        return box.Meets(around) && Meets(box.Grown(structure_.tolerance), line);
    };
    (void)bars_.Visit(budget_, meets, [&](Index bar) {
        const std::size_t before = intervals_.size();
        AddBar(line, bar);
        if (intervals_.size() > before) coverage.members.push_back({Kind::kBar, bar});
    });
    (void)surfaces_.Visit(budget_, meets, [&](Index place) {
        const bool isWall = place >= structure_.surfaces.size();
        const Surface& surface = isWall ? structure_.walls[place - structure_.surfaces.size()]
                                        : structure_.surfaces[place];
        if (edgeOf != nullptr && !LieAlike(*edgeOf, surface)) return;
        if (!budget_.Spend(surface.cornerCount) || !AddSurface(line, surface)) return;
        coverage.isOnSurface = true;
        if (!isWall) coverage.members.push_back({Kind::kSurface, place});
    });
    coverage.share = CoveredShare(structure_.tolerance / length);
    return coverage;
}

bool CoverageSearch::HasMemberIn(const Polygon& polygon)
{
    Box around;
    for (std::size_t i = 0; i < polygon.Size(); ++i) around.Add(polygon.Edge(i).start);
    around = around.Grown(structure_.tolerance);
    const double reach = structure_.tolerance + polygon.OutOfPlane();
    bool isFound = false;
    const auto meets = [&](const Box& box) { return !isFound && box.Meets(around); };
    const auto look = [&](const Element& member) {
        if (isFound || !budget_.Spend(polygon.Size())) return;
        const auto corners = structure_.CornersOf(member);
        isFound = polygon.Contains(structure_.points[corners[0]], structure_.tolerance) &&
                  std::all_of(corners.begin(), corners.end(), [&](Index corner) {
                      const Point point = structure_.points[corner];
                      return std::abs(polygon.ThePlane().DistanceTo(point)) <= reach;
                  });
    };
    (void)bars_.Visit(budget_, meets, [&](Index bar) { look(structure_.bars[bar]); });
    (void)surfaces_.Visit(budget_, meets, [&](Index place) {
        const std::size_t count = structure_.surfaces.size();
        look(place < count ? structure_.surfaces[place] : structure_.walls[place - count]);
    });
    return isFound;
}

}  // namespace tamur::host
