// The fast searches find what comparing everything with everything finds.
#include <gmock/gmock.h>

#include <random>
#include <set>

#include "host/structure/crossings.h"
#include "host/structure/structure.h"
#include "models/element_lines.h"

namespace tamur::host {
namespace {

// Points of a coarse lattice, so that bars and surfaces touch often; sometimes a little beside.
class RandomModel {
 public:
    explicit RandomModel(std::uint32_t seed) : random_(seed) {}

    std::string Text()
    {
        std::vector<std::string> lines;
        const int size = 4 + Below(3);
        for (int i = 0; i < 60; ++i)
            lines.push_back("2 " + Head(i, 2) + At(size) + At(size) + kBar);
        for (int i = 0; i < 15; ++i) lines.push_back("3 " + Head(i, 4) + Panel(size) + kSurface);
        for (int i = 0; i < 40; ++i) lines.push_back("1 " + Head(i, 1) + At(size) + "0 0 0 0");
        // One across everything.
        lines.push_back("2 " + Head(99, 2) + "-500 0 0 500 0 0" + kBar);
        return test::ModelText().Elements(lines).Text();
    }

 private:
    static constexpr const char* kBar = " 0 0 0 1 2 0 0 0 1 1 1 1 1 5";
    static constexpr const char* kSurface = " 0 0 0 1 3 1 1 4 4 0.2 0 0";

    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    std::string Head(int identifier, int points)
    {
        return std::to_string(identifier) + " 0 " + std::to_string(points) + " 0 ";
    }
    std::string At(int size)
    {
        std::string text;
        for (int i = 0; i < 3; ++i) {
            const double beside = Below(20) == 0 ? 0.0004 : 0;
            text += std::to_string(Below(size) + beside) + " ";
        }
        return text;
    }
    std::string Panel(int size)
    {
        const int x = Below(size), y = Below(size), z = Below(size), w = 1 + Below(3);
        std::string text;
        for (const auto& [u, v] : {std::pair{0, 0}, {w, 0}, {w, w}, {0, w}}) {
            text +=
                std::to_string(x + u) + " " + std::to_string(y + v) + " " + std::to_string(z) + " ";
        }
        return text;
    }

    std::mt19937 random_;
};

std::set<std::pair<Index, Index>> StopsOf(const Structure& structure)
{
    std::set<std::pair<Index, Index>> found;
    for (Index bar = 0; bar < structure.bars.size(); ++bar) {
        for (const Stop& stop : structure.stops[bar]) found.emplace(bar, stop.point);
    }
    return found;
}

std::set<std::pair<Index, Index>> AllStops(const Structure& structure)
{
    std::set<std::pair<Index, Index>> found;
    for (Index bar = 0; bar < structure.bars.size(); ++bar) {
        // One that the tolerance takes for a point is not split.
        if (structure.bars[bar].start == structure.bars[bar].end) continue;
        const Segment axis = structure.SegmentOf(structure.bars[bar]);
        for (Index point = 0; point < structure.points.size(); ++point) {
            if (Distance(axis, structure.points[point]) <= structure.tolerance) {
                found.emplace(bar, point);
            }
        }
    }
    return found;
}

std::set<std::pair<Index, Index>> PointsOnSurfaces(const Structure& structure)
{
    std::set<std::pair<Index, Index>> found;
    for (Index point = 0; point < structure.points.size(); ++point) {
        for (const Member& member : structure.membersAt[point]) {
            if (member.kind == Kind::kSurface) found.emplace(member.index, point);
        }
    }
    return found;
}

std::set<std::pair<Index, Index>> AllPointsOnSurfaces(const Structure& structure)
{
    std::set<std::pair<Index, Index>> found;
    for (Index i = 0; i < structure.surfaces.size(); ++i) {
        const std::vector<Point> outline = OutlineOf(structure, structure.surfaces[i]);
        const Polygon polygon(outline);
        for (Index point = 0; point < structure.points.size(); ++point) {
            if (polygon.Contains(structure.points[point], structure.tolerance)) {
                found.emplace(i, point);
            }
        }
    }
    return found;
}

std::set<std::pair<Index, Index>> AllCrossings(const Structure& structure)
{
    std::set<std::pair<Index, Index>> found;
    for (Index a = 0; a < structure.bars.size(); ++a) {
        for (Index b = a + 1; b < structure.bars.size(); ++b) {
            if (structure.stops[a].empty() || structure.stops[b].empty()) continue;
            const Approach approach = ApproachOf(structure.SegmentOf(structure.bars[a]),
                                                 structure.SegmentOf(structure.bars[b]));
            if (approach.isParallel || approach.distance > structure.tolerance) continue;
            bool isCommon = false;
            for (const Stop& one : structure.stops[a]) {
                for (const Stop& two : structure.stops[b]) {
                    isCommon = isCommon || one.point == two.point;
                }
            }
            if (!isCommon) found.emplace(a, b);
        }
    }
    return found;
}

// Each point with the first that it is connected to, by going on until nothing changes.
std::vector<Index> PartsByRepetition(const Structure& structure)
{
    std::vector<Index> parts(structure.points.size());
    for (Index i = 0; i < parts.size(); ++i) parts[i] = i;
    const auto sets = [&] {
        std::vector<std::set<Index>> lists(structure.bars.size() + structure.surfaces.size());
        for (const auto& [bar, point] : AllStops(structure)) lists[bar].insert(point);
        for (const auto& [surface, point] : AllPointsOnSurfaces(structure)) {
            lists[structure.bars.size() + surface].insert(point);
        }
        return lists;
    }();
    for (bool isChanged = true; isChanged;) {
        isChanged = false;
        for (const std::set<Index>& points : sets) {
            Index least = kNone;
            for (const Index point : points) least = std::min(least, parts[point]);
            for (const Index point : points) {
                isChanged = isChanged || parts[point] != least;
                parts[point] = least;
            }
        }
    }
    return parts;
}

TEST(Searches, FindWhatComparingAllFinds)
{
    std::size_t crossings = 0, onSurfaces = 0;
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
        const auto reader = test::Imported(RandomModel(seed).Text());
        const Structure structure = ReadStructure(*reader);
        ASSERT_TRUE(structure.isComplete);
        EXPECT_EQ(StopsOf(structure), AllStops(structure)) << seed;
        EXPECT_EQ(PointsOnSurfaces(structure), AllPointsOnSurfaces(structure)) << seed;
        const Crossings found = FindCrossings(structure);
        const std::set<std::pair<Index, Index>> crossed(found.bars.begin(), found.bars.end());
        EXPECT_EQ(crossed, AllCrossings(structure)) << seed;
        const std::vector<Index> parts = PartsByRepetition(structure);
        for (Index point = 0; point < parts.size(); ++point) {
            if (structure.partOf[point] == kNone) continue;
            EXPECT_EQ(structure.partOf[point], structure.partOf[parts[point]]) << seed;
        }
        const std::set<Index> roots(parts.begin(), parts.end());
        std::set<Index> withMembers;
        for (const Index root : roots) withMembers.insert(structure.partOf[root]);
        withMembers.erase(kNone);
        EXPECT_EQ(withMembers.size(), structure.partCount) << seed;
        crossings += crossed.size();
        onSurfaces += PointsOnSurfaces(structure).size();
    }
    EXPECT_GT(crossings, 100u);
    EXPECT_GT(onSurfaces, 3000u);
}

TEST(Points, AreOneWithinTheToleranceAndNoFurther)
{
    const auto reader = test::Imported(test::ModelText().Elements(
        {"1 1 0 1 0 0 0 0 0 0 0 0", "1 2 0 1 0 0.0009 0 0 0 0 0 0", "1 3 0 1 0 0.5 0 0 0 0 0 0",
         "1 4 0 1 0 0.5 0.0011 0 0 0 0 0", "1 5 0 1 0 5 0 0 0 0 0 0"}));
    const Structure structure = ReadStructure(*reader);
    const auto& c = structure.corners;
    EXPECT_EQ(structure.tolerance, 0.001) << "what test models have";
    EXPECT_EQ(c[0], c[1]);
    EXPECT_NE(c[2], c[3]);
    EXPECT_EQ(structure.points.size(), 4u);
}

}  // namespace
}  // namespace tamur::host
