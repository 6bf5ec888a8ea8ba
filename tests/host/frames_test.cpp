// Local axes, and load directions in them.
#include "host/geometry/frames.h"

#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>

#include "host/structure/geometry.h"
#include "models/element_lines.h"
#include "models/read_element.h"

namespace tamur::host {
namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();

void ExpectNear(Point found, Point expected, const std::string& what)
{
    EXPECT_NEAR(found.x, expected.x, 1e-12) << what;
    EXPECT_NEAR(found.y, expected.y, 1e-12) << what;
    EXPECT_NEAR(found.z, expected.z, 1e-12) << what;
}

void ExpectRightHanded(const Frame& frame, const std::string& what)
{
    EXPECT_NEAR(Length(frame.x), 1, 1e-12) << what;
    EXPECT_NEAR(Length(frame.y), 1, 1e-12) << what;
    EXPECT_NEAR(Dot(frame.x, frame.y), 0, 1e-12) << what;
    ExpectNear(Cross(frame.x, frame.y), frame.z, what);
}

double ReadNumber(std::istream& stream)
{
    std::string word;
    stream >> word;
    const double half = std::sqrt(0.5);
    if (word == "h") return half;
    if (word == "-h") return -half;
    return std::stod(word);
}

Point ReadPoint(std::istream& stream)
{
    const double x = ReadNumber(stream), y = ReadNumber(stream);
    return {x, y, ReadNumber(stream)};
}

TEST(FrameOfABar, IsAsTheSharedTableSays)
{
    std::ifstream file(TAMUR_VECTORS "/bar_axes.txt");
    int lines = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.front() == '#') continue;
        ++lines;
        std::istringstream columns(line);
        const Point start = ReadPoint(columns), end = ReadPoint(columns);
        const double angle = ReadNumber(columns);
        const Point y = ReadPoint(columns), z = ReadPoint(columns);
        const auto axis = FrameOfAxis({start, end});
        ASSERT_TRUE(axis) << line;
        const Frame frame = TurnedAboutX(*axis, angle);
        ExpectNear(frame.y, y, line);
        ExpectNear(frame.z, z, line);
        ExpectRightHanded(frame, line);
    }
    EXPECT_GE(lines, 15);
}

TEST(FrameOfABar, TurnsWithColumnsThatAreNotQuiteVertical)
{
    // A millimetre aside in 3 m is rounding; a metre is a leaning column.
    const auto upright = FrameOfAxis({{0, 0, 0}, {0.001, 0.0005, 3}});
    EXPECT_NEAR(upright->y.y, 1, 1e-3);
    const auto leaning = FrameOfAxis({{0, 0, 0}, {0, 1, 3}});
    ExpectNear(leaning->y, {-1, 0, 0}, "leans along y");
}

TEST(FrameOfABar, HasZTowardsItsOrientationNode)
{
    const Segment axis = {{0, 0, 0}, {5, 0, 0}};
    const Point aside = {2, -3, 0};
    ExpectNear(FrameOfAxis(axis, &aside)->z, {0, -1, 0}, "aside");
    const Point onAxis = {9, 0, 0};
    ExpectNear(FrameOfAxis(axis, &onAxis)->z, {0, 0, 1}, "on the axis: as without");
    const Point absurd = {kInfinite, 0, 0};
    ExpectNear(FrameOfAxis(axis, &absurd)->z, {0, 0, 1}, "cannot be meant: as without");
}

TEST(FrameOfABar, DoesNotExistWithoutADirection)
{
    EXPECT_FALSE(FrameOfAxis({{1, 2, 3}, {1, 2, 3}}));
    EXPECT_FALSE(FrameOfAxis({{0, 0, 0}, {1e-200, 0, 0}}));
    EXPECT_FALSE(FrameOfAxis({{0, 0, 0}, {kInfinite, 0, 0}}));
    EXPECT_FALSE(FrameOfAxis({{0, std::nan(""), 0}, {1, 0, 0}}));
    EXPECT_FALSE(FrameOfAxis({{0, 0, 0}, {0, 0, 1e300}}));
}

TEST(FrameOfABar, IsRightHandedForAllBars)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> coordinate(-10, 10), size(-8, 8);
    const auto point = [&] {
        return Point{coordinate(random), coordinate(random), coordinate(random)};
    };
    for (int i = 0; i < 20000; ++i) {
        const double scale = std::pow(10, size(random));
        const Point other = point();
        const auto frame =
            FrameOfAxis({point() * scale, point() * scale}, i % 2 ? &other : nullptr);
        ASSERT_TRUE(frame);
        ExpectRightHanded(TurnedAboutX(*frame, coordinate(random) * 100), std::to_string(i));
    }
}

// The import adds a quarter turn to bars whose section has an outline; the drawing takes it back.
TEST(FrameOfABar, IsTurnedByTheAngleThatTheFileWrote)
{
    const std::string bar = "2 7 0 2 0  0 0 0  5 0 0  0 0 0  1 2 0 30 1 1 1 1 1 1 5";
    const auto withOutline =
        test::Imported(test::ModelText()
                           .Section("#Geometries", {"R 1 1 1 1 1 1 1 1 1 1 1 0 F 0"})
                           .Elements({bar}));
    const auto withDefault = test::Imported(test::ModelText().Elements({bar}));
    for (ITAMURStructureReader* reader : {withOutline.Get(), withDefault.Get()}) {
        const auto record = Records<TMRFilaire>(*reader).At(0);
        EXPECT_EQ(AngleAsWritten(record.Get()), 30);
        const double sine = 0.5, cosine = std::sqrt(0.75);
        ExpectNear(FrameOfBar(record.Get())->y, {0, cosine, sine}, "y");
    }
}

TEST(FrameOfAPolygon, FollowsTheOrderOfItsCorners)
{
    const std::vector<Point> floor = {{1, 1, 3}, {1, 5, 3}, {-2, 5, 3}, {-2, 1, 3}};
    const auto frame = FrameOfPolygon(floor);
    ExpectNear(frame->x, {0, 1, 0}, "along the first side");
    ExpectNear(frame->y, {-1, 0, 0}, "y");
    ExpectNear(frame->z, {0, 0, 1}, "counter-clockwise from above");
    const std::vector<Point> turned(floor.rbegin(), floor.rend());
    ExpectNear(FrameOfPolygon(turned)->z, {0, 0, -1}, "clockwise from above");
    const std::vector<Point> repeated = {{0, 0, 0}, {0, 0, 0}, {1, 0, 0}, {1, 0, 1}};
    ExpectNear(FrameOfPolygon(repeated)->x, {1, 0, 0}, "the first that has a length");
}

TEST(FrameOfAPolygon, DoesNotExistWithoutAnArea)
{
    EXPECT_FALSE(FrameOfPolygon({}));
    EXPECT_FALSE(FrameOfPolygon(std::vector<Point>{{1, 2, 3}}));
    EXPECT_FALSE(FrameOfPolygon(std::vector<Point>{{1, 2, 3}, {4, 5, 6}}));
    EXPECT_FALSE(FrameOfPolygon(std::vector<Point>{{0, 0, 0}, {1, 1, 1}, {2, 2, 2}}));
    EXPECT_FALSE(FrameOfPolygon(std::vector<Point>{{0, 0, 0}, {1, 0, 0}, {0, kInfinite, 0}}));
}

TEST(FrameOfASupport, IsTheModelsUnlessItIsTurned)
{
    TMRAppuiPonctuel support = {};
    ExpectNear(FrameOfSupport(support).x, {1, 0, 0}, "as it is");
    support.Angle = 90;
    ExpectNear(FrameOfSupport(support).x, {0, 1, 0}, "seen from above");
    const Point node = {0, 0, 2};
    ExpectNear(FrameOfSupport(support, &node).x, {0, 0, 1}, "towards its node");
    ExpectNear(FrameOfSupport(support, &node).y, {-1, 0, 0}, "turned about it");
    const Point same = {0, 0, 0};
    ExpectNear(FrameOfSupport(support, &same).x, {0, 1, 0}, "its node is where it is");
}

TEST(FrameOfALoad, IsLocalForLocalLoadsOnly)
{
    const auto bar = FrameOfAxis({{0, 0, 0}, {0, 0, 4}});
    ExpectNear(FrameOfLoad(TMR_FORCE_LOCAL, bar).ToGlobal({0, 0, -1}), {1, 0, 0}, "local");
    ExpectNear(FrameOfLoad(TMR_FORCE_GLOBAL, bar).ToGlobal({0, 0, -1}), {0, 0, -1}, "global");
    ExpectNear(FrameOfLoad(TMR_FORCE_PROJETE, bar).ToGlobal({0, 0, -1}), {0, 0, -1}, "projected");
    ExpectNear(FrameOfLoad(77, bar).ToGlobal({0, 0, -1}), {0, 0, -1}, "unknown");
    ExpectNear(FrameOfLoad(TMR_FORCE_LOCAL, {}).ToGlobal({0, 0, -1}), {0, 0, -1}, "of nothing");
}

}  // namespace
}  // namespace tamur::host
