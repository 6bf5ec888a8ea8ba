#include "host/geometry/section_outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/structure/tolerances.h"

namespace tamur::host {
namespace {

bool CanBeMeant(double value)
{
    return IsSensible({value, 0, 0});
}

double DoubledArea(const std::vector<PlanePoint>& points)
{
    double sum = 0;
    PlanePoint last = points.back();
    for (const PlanePoint point : points) {
        sum += last.u * point.v - last.v * point.u;
        last = point;
    }
    return sum;
}

// Without what is closed twice and without repetitions; nothing when it has no area.
void Tidy(std::vector<PlanePoint>& points)
{
    const auto isSame = [](PlanePoint a, PlanePoint b) { return a.u == b.u && a.v == b.v; };
    points.erase(std::unique(points.begin(), points.end(), isSame), points.end());
    while (points.size() > 1 && isSame(points.front(), points.back())) points.pop_back();
    const double area = points.size() < 3 ? 0 : DoubledArea(points);
    if (area == 0) points.clear();
    if (area < 0) std::reverse(points.begin(), points.end());
}

std::vector<PlanePoint> PointsOf(const TMRSectionEpure& outline)
{
    // Of code S each has a third value.
    const std::ptrdiff_t step = outline.Code == 'S' ? 3 : 2;
    std::vector<PlanePoint> points;
    for (std::ptrdiff_t i = 0; i < outline.nbPoints; ++i) {
        points.push_back({outline.pTabPoints[i * step], outline.pTabPoints[i * step + 1]});
        if (!CanBeMeant(points.back().u) || !CanBeMeant(points.back().v)) return {};
    }
    Tidy(points);
    return points;
}

std::vector<PlanePoint> CircleOf(double radius)
{
    std::vector<PlanePoint> points;
    for (int i = 0; i < kCircleCorners; ++i) {
        const double angle = 2 * std::numbers::pi * i / kCircleCorners;
        points.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return points;
}

// The sides of the rectangle that has the section's area and inertias: of a rectangle its own.
std::vector<PlanePoint> RectangleOf(const TMRSectionGeometry& section)
{
    const double u = std::sqrt(12 * section.Iz / section.Sx) / 2;
    const double v = std::sqrt(12 * section.Iy / section.Sx) / 2;
    if (!(u > 0 && v > 0 && CanBeMeant(u) && CanBeMeant(v))) return {};
    return {{-u, -v}, {u, -v}, {u, v}, {-u, v}};
}

}  // namespace

SectionOutline OutlineOfSection(const TMRSectionGeometry& section)
{
    using Source = SectionOutline::Source;
    const TMRSectionEpure& outline = section.epureSec;
    std::vector<PlanePoint> points = PointsOf(outline);
    if (!points.empty()) return {Source::kPoints, std::move(points)};
    const bool isCircle = outline.Code == 'C' && outline.dfRadius > 0;
    if (isCircle && CanBeMeant(outline.dfRadius)) {
        return {Source::kCircle, CircleOf(outline.dfRadius)};
    }
    points = RectangleOf(section);
    if (points.empty()) return {};
    return {Source::kStandIn, std::move(points)};
}

PlanePoint OffsetOf(const SectionOutline& outline, int excentration)
{
    if (outline.points.empty() || excentration < FE_GAUCHE_HAUT || excentration > FE__DROITE_BAS) {
        return {};
    }
    const auto [left, right] =
        std::minmax_element(outline.points.begin(), outline.points.end(),
                            [](PlanePoint a, PlanePoint b) { return a.u < b.u; });
    const auto [bottom, top] =
        std::minmax_element(outline.points.begin(), outline.points.end(),
                            [](PlanePoint a, PlanePoint b) { return a.v < b.v; });
    // Left, centre, right; of each top, centre, bottom.
    const double us[] = {-left->u, 0, -right->u};
    const double vs[] = {-top->v, 0, -bottom->v};
    return {us[excentration / 3], vs[excentration % 3]};
}

}  // namespace tamur::host
