// Merged points are those that a search through all of them would merge.
#include "host/structure/point_merger.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace tamur::host {
namespace {

using Numbers = std::vector<std::uint32_t>;

// The number of the nearest point within the tolerance, of equally near ones the first.
Numbers NumbersBySearch(const std::vector<Point>& points, double tolerance)
{
    std::vector<Point> known;
    Numbers numbers;
    for (const Point& point : points) {
        std::size_t nearest = known.size();
        double square = tolerance * tolerance;
        for (std::size_t i = 0; i < known.size(); ++i) {
            const Point between = known[i] - point;
            const double other = Dot(between, between);
            if (other > square || (other == square && nearest < known.size())) continue;
            square = other;
            nearest = i;
        }
        if (nearest == known.size()) known.push_back(point);
        numbers.push_back(static_cast<std::uint32_t>(nearest));
    }
    return numbers;
}

// On a lattice of quarters of the tolerance, where many are equally near; the lists grow.
std::vector<Point> PointsIn(int width, int count)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> place(-width, width);
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        const double x = place(random), y = place(random), z = place(random);
        points.push_back(Point{x, y, z} * 0.25);
    }
    return points;
}

TEST(PointMerger, MergesAsASearchThroughAllPointsWould)
{
    for (const int width : {3, 20, 60, 1000}) {
        const std::vector<Point> points = PointsIn(width, 4000);
        PointMerger merger(1, points[0], points.size());
        Numbers numbers;
        merger.AddNumbersOf(std::span(points).first(1001), numbers);
        merger.AddNumbersOf(std::span(points).subspan(1001), numbers);
        EXPECT_EQ(numbers, NumbersBySearch(points, 1)) << width;
        EXPECT_EQ(merger.TakePoints().size(),
                  *std::max_element(numbers.begin(), numbers.end()) + 1);
    }
}

TEST(PointMerger, KeepsTheFirstOfMergedPoints)
{
    PointMerger merger(1, {}, 3);
    Numbers numbers;
    merger.AddNumbersOf(std::vector<Point>{{5, 5, 5}, {9, 5, 5}, {5.5, 5, 5}}, numbers);
    EXPECT_EQ(numbers, (Numbers{0, 1, 0}));
    EXPECT_EQ(merger.TakePoints(), (std::vector<Point>{{5, 5, 5}, {9, 5, 5}}));
}

}  // namespace
}  // namespace tamur::host
