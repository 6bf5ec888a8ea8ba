// Outlines of sections as they are drawn about the axis of a bar.
#include "host/geometry/section_outline.h"

#include <gmock/gmock.h>

#include "models/element_lines.h"

namespace tamur::host {
namespace {

using Source = SectionOutline::Source;

SectionOutline OutlineOfLine(const std::string& columns)
{
    const auto reader = test::Imported(test::ModelText().Section(
        "#Geometries", {"NAME 0.06 0.05 0.05 0.0004695 0.00045 0.0002 1 1 1 1 1 " + columns}));
    return OutlineOfSection(Records<TMRSectionGeometry>(*reader).At(0).Get());
}

std::vector<std::pair<double, double>> PointsOf(const SectionOutline& outline)
{
    std::vector<std::pair<double, double>> points;
    for (const PlanePoint point : outline.points) points.emplace_back(point.u, point.v);
    return points;
}

using Points = std::vector<std::pair<double, double>>;

TEST(OutlineOfASection, HasThePointsOfTheFileCounterClockwise)
{
    const Points expected = {{0, 0}, {2, 0}, {2, 1}};
    EXPECT_EQ(PointsOf(OutlineOfLine("3 F 0 0 2 0 2 1 0")), expected);
    const Points reversed = {{2, 0}, {2, 1}, {0, 0}};
    EXPECT_EQ(PointsOf(OutlineOfLine("3 F 0 0 2 1 2 0 0")), reversed);
    EXPECT_EQ(PointsOf(OutlineOfLine("6 F 0 0 0 0 2 0 2 1 2 1 0 0 0")), expected)
        << "without repetitions, and closed once";
    EXPECT_EQ(PointsOf(OutlineOfLine("3 S 0 0 2 0 2 1 7 8 9")), expected)
        << "third values are no coordinates";
    EXPECT_EQ(OutlineOfLine("3 F 0 0 2 0 2 1 0").source, Source::kPoints);
}

TEST(OutlineOfASection, IsACircleForOnesWithARadiusOnly)
{
    const SectionOutline circle = OutlineOfLine("0 C 0.15");
    EXPECT_EQ(circle.source, Source::kCircle);
    ASSERT_EQ(circle.points.size(), static_cast<std::size_t>(kCircleCorners));
    for (const PlanePoint point : circle.points) {
        EXPECT_NEAR(std::hypot(point.u, point.v), 0.15, 1e-12);
    }
}

TEST(OutlineOfASection, IsARectangleWhereTheFileHasNone)
{
    // Also for outlines without an area, and for numbers that cannot be meant.
    for (const char* columns : {"0 F 0", "2 F 0 0 1 1 0", "3 F 0 0 1 1 2 2 0", "-5 F 0", "0 C -1",
                                "3 F 0 0 1 0 1 1e30 0", "0 C 1e300"}) {
        const SectionOutline outline = OutlineOfLine(columns);
        EXPECT_EQ(outline.source, Source::kStandIn) << columns;
        ASSERT_EQ(outline.points.size(), 4u) << columns;
        EXPECT_NEAR(outline.points[2].u, 0.1, 1e-9) << columns;
        EXPECT_NEAR(outline.points[2].v, 0.15, 1e-9) << columns;
    }
    const auto reader = test::Imported(test::ModelText());
    const auto byDefault = OutlineOfSection(Records<TMRSectionGeometry>(*reader).At(0).Get());
    EXPECT_EQ(byDefault.source, Source::kStandIn) << "R20*30, the import's own";
    EXPECT_NEAR(byDefault.points[2].v, 0.15, 1e-9);
}

TEST(OutlineOfASection, IsNothingWithoutAreaAndInertias)
{
    TMRSectionGeometry section = {};
    EXPECT_EQ(OutlineOfSection(section).source, Source::kNothing);
    section.Sx = 1;
    section.Iy = -1;
    section.Iz = 1;
    EXPECT_EQ(OutlineOfSection(section).source, Source::kNothing);
    section.Iy = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(OutlineOfSection(section).source, Source::kNothing);
}

TEST(OffsetOfAnOutline, PutsTheNamedPlaceOnTheAxis)
{
    const SectionOutline outline = {Source::kPoints, {{-1, -2}, {3, -2}, {3, 5}, {-1, 5}}};
    const auto offset = [&](int excentration) {
        const PlanePoint by = OffsetOf(outline, excentration);
        return std::pair(by.u, by.v);
    };
    EXPECT_EQ(offset(FE_GAUCHE_HAUT), std::pair(1.0, -5.0));
    EXPECT_EQ(offset(FE__GAUCHE_BAS), std::pair(1.0, 2.0));
    EXPECT_EQ(offset(FE__CENTRE_CENTRE), std::pair(0.0, 0.0));
    EXPECT_EQ(offset(FE__CENTRE_HAUT), std::pair(0.0, -5.0));
    EXPECT_EQ(offset(FE__DROITE_CENTRE), std::pair(-3.0, 0.0));
    EXPECT_EQ(offset(-1), std::pair(0.0, 0.0));
    EXPECT_EQ(offset(9), std::pair(0.0, 0.0));
    EXPECT_EQ(OffsetOf({}, FE_GAUCHE_HAUT).u, 0);
}

}  // namespace
}  // namespace tamur::host
