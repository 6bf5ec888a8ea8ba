#include "host/geometry/triangles.h"

#include <algorithm>
#include <cmath>

#include "host/geometry/bands.h"
#include "host/structure/box_tree.h"

namespace tamur::host {
namespace {

// Cutting ears takes a power of the number of edges where they cross, and a step for each point and
// opening. Below the first nothing is long; the second takes a tenth of a second.
constexpr std::size_t kFewEdges = 300;
constexpr std::size_t kMostBridges = 10'000'000;
// What areas are added up to.
constexpr double kRounding = 1e-9;

double TurnOf(PlanePoint a, PlanePoint b, PlanePoint c)
{
    return (b.u - a.u) * (c.v - a.v) - (b.v - a.v) * (c.u - a.u);
}

double AreaOf(const std::vector<PlanePoint>& ring)
{
    double sum = 0;
    for (std::size_t i = 2; i < ring.size(); ++i) sum += TurnOf(ring[0], ring[i - 1], ring[i]);
    return std::abs(sum) / 2;
}

// Whether edges pass through each other; to end in the other's corner is no crossing.
bool HasCrossings(const std::vector<std::vector<PlanePoint>>& rings)
{
    std::vector<std::pair<PlanePoint, PlanePoint>> edges;
    for (const auto& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            edges.emplace_back(ring[i], ring[i + 1 < ring.size() ? i + 1 : 0]);
        }
    }
    std::vector<Box> boxes;
    for (const auto& [a, b] : edges) boxes.push_back(BoxOf({{a.u, a.v, 0}, {b.u, b.v, 0}}));
    bool isCrossed = false;
    Budget budget(1000 * edges.size());
    const bool isComplete =
        BoxTree(boxes).VisitPairs(budget, [&](std::uint32_t first, std::uint32_t second) {
            const auto& [a, b] = edges[first];
            const auto& [c, d] = edges[second];
            isCrossed = isCrossed || (TurnOf(a, b, c) * TurnOf(a, b, d) < 0 &&
                                      TurnOf(c, d, a) * TurnOf(c, d, b) < 0);
            if (isCrossed) budget = Budget(0);
        });
    return isCrossed || !isComplete;
}

}  // namespace

const Triangles& Triangulator::Cut(const Frame& frame, std::span<const Point> outline,
                                   std::span<const std::vector<Point>> openings)
{
    triangles_.corners.clear();
    triangles_.isComplete = true;
    Flatten(frame, outline, openings);
    const std::size_t openingsWithin = rings_.size() - 1;
    if (openingsWithin * flat_.size() > kMostBridges) {
        rings_.resize(1);
        triangles_.isComplete = false;
    }
    if (rings_.size() == 1 && Polygon(outline).IsConvex()) {
        CutFan();
    } else if (flat_.size() <= kFewEdges || !HasCrossings(rings_)) {
        CutEars();
        if (!triangles_.isAsDrawn) CutBands(frame, outline.front());
    } else {
        triangles_.isComplete = false;
        Measure();
    }
    return triangles_;
}

void Triangulator::Flatten(const Frame& frame, std::span<const Point> outline,
                           std::span<const std::vector<Point>> openings)
{
    rings_.resize(1 + openings.size());
    triangles_.points.clear();
    flat_.clear();
    drawnArea_ = 0;
    const auto add = [&](Ring& ring, std::span<const Point> points) {
        ring.clear();
        for (const Point& point : points) {
            const Point local = frame.ToLocal(point - outline.front());
            ring.push_back({local.x, local.y});
        }
        triangles_.points.insert(triangles_.points.end(), points.begin(), points.end());
        flat_.insert(flat_.end(), ring.begin(), ring.end());
    };
    add(rings_[0], outline);
    drawnArea_ = AreaOf(rings_[0]);
    for (std::size_t i = 0; i < openings.size(); ++i) {
        add(rings_[1 + i], openings[i]);
        drawnArea_ -= AreaOf(rings_[1 + i]);
    }
}

void Triangulator::CutFan()
{
    for (std::uint32_t i = 2; i < rings_[0].size(); ++i) {
        triangles_.corners.insert(triangles_.corners.end(), {0, i - 1, i});
    }
    Measure();
}

void Triangulator::CutEars()
{
    triangles_.corners = ears_.Cut(rings_);
    Measure();
}

// What bands cannot cut stays as it is.
void Triangulator::CutBands(const Frame& frame, Point origin)
{
    if (flat_.size() > kFewEdges) return;
    const std::optional<Bands> bands = BandsOf(rings_);
    if (!bands) return;
    triangles_.corners.clear();
    const auto first = static_cast<std::uint32_t>(flat_.size());
    for (const std::uint32_t corner : bands->corners) {
        triangles_.corners.push_back(first + corner);
    }
    for (const PlanePoint point : bands->points) {
        flat_.push_back(point);
        triangles_.points.push_back(origin + frame.x * point.u + frame.y * point.v);
    }
    Measure();
}

// Adds up the triangles, turns those that are clockwise and takes out those without an area.
void Triangulator::Measure()
{
    auto& corners = triangles_.corners;
    double doubled = 0;
    std::size_t kept = 0;
    for (std::size_t i = 0; i + 2 < corners.size(); i += 3) {
        std::uint32_t a = corners[i], b = corners[i + 1], c = corners[i + 2];
        const double turn = TurnOf(flat_[a], flat_[b], flat_[c]);
        if (turn == 0) continue;
        if (turn < 0) std::swap(b, c);
        doubled += std::abs(turn);
        corners[kept++] = a;
        corners[kept++] = b;
        corners[kept++] = c;
    }
    corners.resize(kept);
    triangles_.area = doubled / 2;
    triangles_.isAsDrawn = std::abs(triangles_.area - drawnArea_) <= kRounding * AreaOf(rings_[0]);
}

}  // namespace tamur::host
