// Sums against values calculated by hand.
#include "host/sums/sums.h"

#include <gmock/gmock.h>

#include "models/element_lines.h"

namespace tamur::host {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

auto Are(const Forces& expected)
{
    return Pointwise(testing::DoubleNear(1e-9), expected);
}

Sums SumsOfModel(const std::vector<std::string>& elements)
{
    const auto reader =
        test::Imported(test::ModelText()
                           .Section("#Cas", {"1 Permanentes 1 G 0", "2 Neige 1 N 0"})
                           .Elements(elements));
    return SumsOf(ReadStructure(*reader), ReadLoadCases(*reader));
}

TEST(SumsOfForces, AreByCaseAndFrame)
{
    const Sums sums = SumsOfModel({
        "5 1 0 1 0  0 0 0  0 0 0  1 1 1 2 3 4 5 6",
        "5 2 0 1 0  9 9 9  0 0 0  1 1 10 20 30 40 50 60",
        "5 3 0 1 0  0 0 0  0 0 0  1 2 7 0 0 0 0 0",
        "5 4 0 1 0  0 0 0  0 0 0  5 1 0 0 8 0 0 0",
    });
    ASSERT_EQ(sums.cases.size(), 2u);
    EXPECT_EQ(sums.cases[0].number, 1);
    EXPECT_EQ(sums.cases[0].title, "Permanentes");
    EXPECT_EQ(sums.cases[0].loads, 3u);
    EXPECT_THAT(sums.cases[0].byFrame.at(1), Are({11, 22, 33, 44, 55, 66}));
    EXPECT_THAT(sums.cases[0].byFrame.at(2), Are({7, 0, 0, 0, 0, 0}));
    EXPECT_EQ(sums.cases[1].number, 5);
    EXPECT_EQ(sums.cases[1].title, "") << "there is no such case";
}

TEST(SumsOfForces, TakeLineLoadsAsIntensityTimesLength)
{
    // 5 long, on average 150: 750 downwards; a moment of half of it.
    const Sums sums = SumsOfModel({"6 1 0 2 0  0 0 0  3 4 0  0 0 0  2 3 100 200 0 0 -1 0.5 0 0"});
    EXPECT_THAT(sums.cases[0].byFrame.at(3), Are({0, 0, -750, 375, 0, 0}));
}

TEST(SumsOfForces, TakeSurfaceLoadsAsIntensityTimesArea)
{
    // 6 by 5; even: 30 times 100. 100 to 700 along x: 400 on average. A triangle: the mean of
    // three.
    const std::string at = "7 1 0 4 0  0 0 3  6 0 3  6 5 3  0 5 3  0 0 0  ";
    EXPECT_THAT(SumsOfModel({at + "1 1 100 100 100 0 0 -1"}).cases[0].byFrame.at(1),
                Are({0, 0, -3000, 0, 0, 0}));
    EXPECT_THAT(SumsOfModel({at + "1 1 100 700 700 0 0 -1"}).cases[0].byFrame.at(1),
                Are({0, 0, -12000, 0, 0, 0}));
    EXPECT_THAT(SumsOfModel({"7 1 0 3 0  0 0 0  6 0 0  0 5 0  0 0 0  1 1 1 2 6 0 0 1"})
                    .cases[0]
                    .byFrame.at(1),
                Are({0, 0, 45, 0, 0, 0}));
}

TEST(SumsOfMasses, AddEachColumn)
{
    const Sums sums = SumsOfModel(
        {"9 1 0 1 0  0 0 0  0 0 0  1 2 3 4 5 6", "9 2 0 1 0  0 0 0  0 0 0  10 20 30 40 50 60"});
    EXPECT_THAT(sums.masses, Are({11, 22, 33, 44, 55, 66}));
}

TEST(SumsOfBars, AreLengthsByTheirSections)
{
    const auto reader =
        test::Imported(test::ModelText()
                           .Section("#Geometries", {"A 1 1 1 1 1 1 1 1 1 1 1 0 F 0",
                                                    "B 2 2 2 2 2 2 2 2 2 2 2 0 F 0"})
                           .Elements({"2 1 0 2 0  0 0 0  3 4 0  0 0 0  1 2 0 0 0 1 1 1 1 1 5",
                                      "2 2 0 2 0  0 0 0  0 0 2.5  0 0 0  1 2 0 0 0 1 1 1 1 1 5",
                                      "2 3 0 2 0  0 0 0  0 0 2  0 0 0  1 2 0 0 0 1 1 2 1 1 5"}));
    const Sums sums = SumsOf(ReadStructure(*reader), ReadLoadCases(*reader));
    ASSERT_EQ(sums.lengths.size(), 2u);
    EXPECT_THAT(sums.lengths.at({0, 0}), DoubleNear(7.5, 1e-12));
    EXPECT_THAT(sums.lengths.at({0, 1}), DoubleNear(2, 1e-12));
}

TEST(SumsOfSurfaces, AreAreasByThicknessLessTheirOpenings)
{
    const std::string columns = "  0 0 0  1 3 1 1 4 4 ";
    const Sums sums = SumsOfModel({
        "3 1 0 4 0  0 0 0  6 0 0  6 5 0  0 5 0" + columns + "0.2 0 0",
        "3 2 0 3 0  0 0 3  6 0 3  0 5 3" + columns + "0.18 0 0",
        "17 3 0 4 0  1 1 0  3 1 0  3 2 0  1 2 0  0 0 0  4 4",
        "17 4 0 4 0  1 1 9  3 1 9  3 2 9  1 2 9  0 0 0  4 4",
    });
    ASSERT_EQ(sums.areas.size(), 2u);
    EXPECT_THAT(sums.areas.at(0.2), DoubleNear(28, 1e-12));
    EXPECT_THAT(sums.areas.at(0.18), DoubleNear(15, 1e-12));
}

}  // namespace
}  // namespace tamur::host
