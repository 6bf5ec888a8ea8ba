// Surfaces with openings as triangles: the areas are those of the polygons.
#include "host/geometry/triangles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "host/geometry/centring.h"

namespace tamur::host {
namespace {

using Outline = std::vector<Point>;

Outline Rectangle(double x, double y, double width, double height)
{
    return {{x, y, 0}, {x + width, y, 0}, {x + width, y + height, 0}, {x, y + height, 0}};
}

// What the triangles are in space, whatever they say of themselves.
double AreaOf(const Triangles& triangles)
{
    double area = 0;
    for (std::size_t i = 0; i + 2 < triangles.corners.size(); i += 3) {
        const Point a = triangles.points[triangles.corners[i]];
        const Point b = triangles.points[triangles.corners[i + 1]];
        const Point c = triangles.points[triangles.corners[i + 2]];
        area += Length(Cross(b - a, c - a)) / 2;
    }
    return area;
}

const Triangles& Cut(Triangulator& triangulator, const Outline& outline,
                     const std::vector<Outline>& openings = {})
{
    return triangulator.Cut(*FrameOfPolygon(outline), outline, openings);
}

void ExpectArea(const Outline& outline, const std::vector<Outline>& openings, double area,
                bool isAsDrawn = true)
{
    Triangulator triangulator;
    const Triangles& triangles = Cut(triangulator, outline, openings);
    EXPECT_NEAR(AreaOf(triangles), area, 1e-9 * area);
    EXPECT_NEAR(triangles.area, area, 1e-9 * area);
    EXPECT_EQ(triangles.isAsDrawn, isAsDrawn);
    EXPECT_TRUE(triangles.isComplete);
}

TEST(TrianglesOfASurface, CoverIt)
{
    ExpectArea({{0, 0, 0}, {3, 0, 0}, {0, 4, 0}}, {}, 6);
    ExpectArea(Rectangle(0, 0, 4, 3), {}, 12);
    ExpectArea({{0, 0, 0}, {4, 0, 0}, {4, 1, 0}, {1, 1, 0}, {1, 3, 0}, {0, 3, 0}}, {}, 6);
    ExpectArea({{0, 0, 0}, {4, 0, 0}, {4, 0, 0}, {4, 3, 0}, {2, 3, 0}, {0, 3, 0}, {0, 0, 0}}, {},
               12);
}

TEST(TrianglesOfASurface, LeaveOutItsOpenings)
{
    const Outline wall = Rectangle(0, 0, 4, 3);
    ExpectArea(wall, {Rectangle(1, 1, 1, 1)}, 11);
    ExpectArea(wall, {Rectangle(1, 0, 1, 2)}, 10);  // a door
    ExpectArea(wall, {Rectangle(1, 0, 1, 2), Rectangle(2, 1, 1, 1)}, 9);
    ExpectArea(wall, {Rectangle(0, 0, 4, 3)}, 0);
    ExpectArea(wall, {{}, {{1, 1, 0}}, {{1, 1, 0}, {2, 2, 0}}}, 12);
}

TEST(TrianglesOfASurface, AreWhatIsLeftWhereOpeningsLieOnEachOther)
{
    const Outline wall = Rectangle(0, 0, 4, 3);
    ExpectArea(wall, {Rectangle(1, 1, 1, 1), Rectangle(1, 1, 1, 1)}, 11, false);
    ExpectArea(wall, {Rectangle(1, 1, 1, 1), Rectangle(1.5, 1.5, 1, 1)}, 12 - 1.75, false);
    ExpectArea(wall, {Rectangle(3, 1, 2, 1)}, 11, false);  // reaches out of the wall
}

TEST(TrianglesOfASurface, AreTheTwoSidesOfAnOutlineThatCrossesItself)
{
    // Triangles of 8 and of 2; drawn, 8 less 2.
    ExpectArea({{-4, -2, 0}, {2, 1, 0}, {2, -1, 0}, {-4, 2, 0}}, {}, 8 + 2, false);
}

TEST(TrianglesOfASurface, AreRightForAnyWindowsOnAGrid)
{
    std::mt19937 random(1);
    Triangulator triangulator;
    for (int round = 0; round < 3000; ++round) {
        std::vector<Outline> windows;
        for (int x = 0; x < 4; ++x) {
            for (int y = 0; y < 3; ++y) {
                if (random() % 3 == 0) windows.push_back(Rectangle(x, y, 1, 1));
                if (random() % 2 == 0 && !windows.empty()) {
                    std::reverse(windows.back().begin(), windows.back().end());
                }
            }
        }
        const double area = 12 - static_cast<double>(windows.size());
        const Triangles& triangles = Cut(triangulator, Rectangle(0, 0, 4, 3), windows);
        EXPECT_NEAR(AreaOf(triangles), area, 1e-9);
        EXPECT_TRUE(triangles.isAsDrawn);
    }
}

TEST(TrianglesOfASurface, AreRightForAnyStarInAnyPlace)
{
    std::mt19937 random(2);
    std::uniform_real_distribution<double> unit(0, 1);
    Triangulator triangulator;
    for (int round = 0; round < 500; ++round) {
        // A tilted plane, far away.
        const Frame plane = TurnedAboutX(*FrameOfAxis({{0, 0, 0}, {unit(random), 1, 1}}), round);
        const Point middle = {1e6, -2e6, unit(random)};
        Outline star;
        double area = 0, last = 0;
        const int corners = 3 + round;
        std::vector<double> radii;
        for (int i = 0; i < corners; ++i) radii.push_back(0.2 + unit(random));
        for (int i = 0; i < corners; ++i) {
            const double angle = 2 * std::numbers::pi * i / corners;
            const double r = radii[static_cast<std::size_t>(i)];
            star.push_back(middle + plane.x * (r * std::cos(angle)) +
                           plane.y * (r * std::sin(angle)));
            last = i == 0 ? radii.back() : radii[static_cast<std::size_t>(i) - 1];
            area += last * r * std::sin(2 * std::numbers::pi / corners) / 2;
        }
        const Triangles& triangles = Cut(triangulator, star);
        EXPECT_NEAR(AreaOf(triangles), area, 1e-7 * area) << corners;
        EXPECT_TRUE(triangles.isComplete);
    }
}

TEST(TrianglesOfASurface, TurnWithItsFrame)
{
    Triangulator triangulator;
    for (Outline outline :
         {Rectangle(0, 0, 2, 1), Outline{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {3, 1, 0}}}) {
        for (int side = 0; side < 2; ++side) {
            const Frame frame = *FrameOfPolygon(outline);
            const Triangles& triangles = triangulator.Cut(frame, outline);
            for (std::size_t i = 0; i < triangles.corners.size(); i += 3) {
                const Point a = triangles.points[triangles.corners[i]];
                const Point b = triangles.points[triangles.corners[i + 1]];
                const Point c = triangles.points[triangles.corners[i + 2]];
                EXPECT_GT(Dot(Cross(b - a, c - a), frame.z), 0);
            }
            std::reverse(outline.begin(), outline.end());
        }
    }
}

// A file may hold thousands of such lines; each may take no more than its share.
TEST(TrianglesOfASurface, EndEarlyForHostileOutlines)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> unit(0, 1);
    Outline tangle;
    for (int i = 0; i < 8000; ++i) tangle.push_back({unit(random), unit(random), 0});
    Triangulator triangulator;
    const Triangles& none = Cut(triangulator, tangle);
    EXPECT_FALSE(none.isComplete);
    EXPECT_TRUE(none.corners.empty());
    EXPECT_EQ(none.points.size(), tangle.size());

    tangle.resize(200);
    const Triangles& some = Cut(triangulator, tangle);
    EXPECT_LE(some.corners.size(), 3u * 21 * 200);

    std::vector<Outline> windows;
    for (int i = 0; i < 100; ++i) {
        for (int k = 0; k < 100; ++k) windows.push_back(Rectangle(i + 0.2, k + 0.2, 0.5, 0.5));
    }
    const Triangles& whole = Cut(triangulator, Rectangle(0, 0, 100, 100), windows);
    EXPECT_FALSE(whole.isComplete);
    EXPECT_FALSE(whole.isAsDrawn);
    EXPECT_NEAR(AreaOf(whole), 10000, 1e-6);
}

TEST(CentreOfADrawing, IsTheOriginUnlessTheModelIsFarFromIt)
{
    Centring close, distant, empty;
    close.Add({0, 0, 0});
    close.Add({20, 10, 7});
    EXPECT_EQ(close.Centre(), Point{});
    EXPECT_EQ(empty.Centre(), Point{});
    distant.Add({600000.25, 1200000, 100});
    distant.Add({600010, 1200005, 120});
    distant.Add({std::numeric_limits<double>::infinity(), 0, 0});
    distant.Add({0, std::nan(""), 0});
    const Point centre = distant.Centre();
    EXPECT_EQ(centre, (Point{600005, 1200003, 110}));
    const auto relative = Centring::Relative({600000.25, 1200000, 100.125}, centre);
    EXPECT_EQ(relative[0], -4.75F);
    EXPECT_EQ(relative[2], -9.875F);
}

}  // namespace
}  // namespace tamur::host
