// Bodies of bars and surfaces: closed, and as large as they must be.
#include "host/geometry/solids.h"

#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <random>

#include "host/export/glb/scene.h"

namespace tamur::host {
namespace {

// Positive when its triangles are seen from outside counter-clockwise.
double VolumeOf(const Solid& solid)
{
    double volume = 0;
    for (std::size_t i = 0; i < solid.corners.size(); i += 3) {
        const Point a = solid.points[solid.corners[i]];
        const Point b = solid.points[solid.corners[i + 1]];
        const Point c = solid.points[solid.corners[i + 2]];
        volume += Dot(a, Cross(b, c)) / 6;
    }
    return volume;
}

// Each edge of a triangle is another's, the other way round.
bool IsClosed(const Solid& solid)
{
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
    for (std::size_t i = 0; i < solid.corners.size(); ++i) {
        const std::uint32_t from = solid.corners[i];
        const std::uint32_t to = solid.corners[i % 3 == 2 ? i - 2 : i + 1];
        ++edges[{from, to}];
        --edges[{to, from}];
    }
    return std::all_of(edges.begin(), edges.end(), [](const auto& e) { return e.second == 0; });
}

TEST(SolidOfABar, IsClosedAndAsLargeAsItsOutline)
{
    Triangulator triangulator;
    const std::vector<PlanePoint> square = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    const std::vector<PlanePoint> angle = {{0, 0}, {3, 0}, {3, 1}, {1, 1}, {1, 2}, {0, 2}};
    for (const auto& [outline, area] : {std::pair(square, 4.0), std::pair(angle, 4.0)}) {
        const Solid solid = SolidOfBar(outline, outline, triangulator);
        EXPECT_TRUE(IsClosed(solid));
        EXPECT_NEAR(VolumeOf(solid), area, 1e-12);
    }
    // To the half of its width and height: a frustum of a pyramid.
    const std::vector<PlanePoint> small = {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}};
    const Solid tapered = SolidOfBar(square, small, triangulator);
    EXPECT_TRUE(IsClosed(tapered));
    EXPECT_NEAR(VolumeOf(tapered), (4 + 1 + 2) / 3.0, 1e-12);
}

TEST(SolidOfASurface, IsClosedAndLeavesOutItsOpenings)
{
    Triangulator triangulator;
    const std::vector<Point> wall = {{0, 9, 0}, {4, 9, 0}, {4, 9, 3}, {0, 9, 3}};
    const std::vector<std::vector<Point>> windows = {{{1, 9, 1}, {2, 9, 1}, {2, 9, 2}, {1, 9, 2}},
                                                     {{3, 9, 0}, {3, 9, 2}, {4, 9, 2}, {4, 9, 0}}};
    const Frame frame = *FrameOfPolygon(wall);
    Solid solid;
    MakeSolid(triangulator.Cut(frame, wall, windows), frame.z, 0.2, wall[0], solid);
    EXPECT_TRUE(IsClosed(solid));
    EXPECT_NEAR(VolumeOf(solid), (12 - 1 - 2) * 0.2, 1e-12);
    // Without a thickness it is one side only.
    MakeSolid(triangulator.Cut(frame, wall), frame.z, 0, {}, solid);
    EXPECT_EQ(solid.corners.size(), 6u);
    EXPECT_EQ(solid.points, wall);
}

// x, y, z, w; as the makers of glTF define it.
Point Turned(const std::array<float, 4>& q, Point point)
{
    const Point axis = {q[0], q[1], q[2]};
    const Point twice = Cross(axis, point) * 2;
    return point + twice * q[3] + Cross(axis, twice);
}

TEST(QuaternionOfAFrame, TurnsTheAxesOfTheModelToThoseOfTheFrame)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> unit(-1, 1);
    for (int i = 0; i < 2000; ++i) {
        // Also along the axes, where its parts are 0.
        const auto part = [&] { return i % 3 == 0 ? std::round(unit(random)) : unit(random); };
        const auto axis = FrameOfAxis({{0, 0, 0}, {part(), part(), part()}});
        if (!axis) continue;
        const Frame frame = TurnedAboutX(*axis, i % 2 == 0 ? 90 * (i % 7) : i);
        const auto q = QuaternionOf(frame);
        EXPECT_LT(Length(Turned(q, {1, 0, 0}) - frame.x), 1e-6);
        EXPECT_LT(Length(Turned(q, {0, 1, 0}) - frame.y), 1e-6);
        EXPECT_LT(Length(Turned(q, {0, 0, 1}) - frame.z), 1e-6);
    }
}

}  // namespace
}  // namespace tamur::host
