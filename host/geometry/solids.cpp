#include "host/geometry/solids.h"

#include <algorithm>

namespace tamur::host {

Solid SolidOfBar(const std::vector<PlanePoint>& start, const std::vector<PlanePoint>& end,
                 Triangulator& triangulator)
{
    Solid solid;
    std::vector<Point> cap;
    for (const PlanePoint point : start) solid.points.push_back({0, point.u, point.v});
    for (const PlanePoint point : end) solid.points.push_back({1, point.u, point.v});
    const auto count = static_cast<std::uint32_t>(start.size());
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t next = i + 1 < count ? i + 1 : 0;
        solid.corners.insert(solid.corners.end(),
                             {i, next, count + next, i, count + next, count + i});
    }
    // Two caps; each has the points of its end, and others where its outline crosses itself.
    for (const std::uint32_t first : {0u, count}) {
        cap.assign(solid.points.begin() + first, solid.points.begin() + first + count);
        const Frame frame = {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}};
        const Triangles& triangles = triangulator.Cut(frame, cap);
        const auto added = static_cast<std::uint32_t>(solid.points.size());
        solid.points.insert(solid.points.end(), triangles.points.begin() + count,
                            triangles.points.end());
        for (std::size_t i = 0; i < triangles.corners.size(); i += 3) {
            std::uint32_t corners[3];
            for (std::size_t k = 0; k < 3; ++k) {
                const std::uint32_t corner = triangles.corners[i + k];
                corners[k] = corner < count ? first + corner : added + corner - count;
            }
            // The one at the start is seen from behind.
            if (first == 0) std::swap(corners[1], corners[2]);
            solid.corners.insert(solid.corners.end(), corners, corners + 3);
        }
    }
    return solid;
}

namespace {

// Edges that only one triangle has.
void AddSides(const std::vector<std::uint32_t>& triangles, std::uint32_t below,
              std::vector<std::uint32_t>& corners)
{
    struct Edge {
        std::uint32_t low, high;
        bool isReversed;
    };
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < triangles.size(); ++i) {
        const std::uint32_t from = triangles[i];
        const std::uint32_t to = triangles[i % 3 == 2 ? i - 2 : i + 1];
        edges.push_back({std::min(from, to), std::max(from, to), from > to});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) {
        return std::pair(a.low, a.high) < std::pair(b.low, b.high);
    });
    const auto isSame = [&](std::size_t i, std::size_t k) {
        return edges[i].low == edges[k].low && edges[i].high == edges[k].high;
    };
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if ((i > 0 && isSame(i, i - 1)) || (i + 1 < edges.size() && isSame(i, i + 1))) continue;
        const auto [low, high, isReversed] = edges[i];
        const std::uint32_t from = isReversed ? high : low, to = isReversed ? low : high;
        corners.insert(corners.end(), {from, below + from, below + to, from, below + to, to});
    }
}

}  // namespace

void MakeSolid(const Triangles& triangles, Point normal, double thickness, Point origin,
               Solid& solid)
{
    const bool isFlat = !(thickness > 0);
    const Point half = normal * (isFlat ? 0 : thickness / 2);
    solid.points.clear();
    solid.corners = triangles.corners;
    for (const Point& point : triangles.points) solid.points.push_back(point - origin + half);
    if (isFlat) return;
    const auto below = static_cast<std::uint32_t>(triangles.points.size());
    for (const Point& point : triangles.points) solid.points.push_back(point - origin - half);
    for (std::size_t i = 0; i < triangles.corners.size(); i += 3) {
        solid.corners.insert(solid.corners.end(),
                             {below + triangles.corners[i], below + triangles.corners[i + 2],
                              below + triangles.corners[i + 1]});
    }
    AddSides(triangles.corners, below, solid.corners);
}

}  // namespace tamur::host
