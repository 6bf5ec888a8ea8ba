#include "host/structure/geometry.h"

#include <algorithm>

namespace tamur::host {
namespace {

double CrossOf(PlanePoint a, PlanePoint b, PlanePoint c)
{
    return (b.u - a.u) * (c.v - b.v) - (b.v - a.v) * (c.u - b.u);
}

}  // namespace

Approach ApproachOf(const Segment& first, const Segment& second)
{
    const Point along1 = first.end - first.start, along2 = second.end - second.start;
    const Point between = first.start - second.start;
    const double square1 = Dot(along1, along1), square2 = Dot(along2, along2);
    const double product = Dot(along1, along2);
    const double determinant = square1 * square2 - product * product;
    Approach approach;
    // 1e-12 is the square of a sine: a millionth of a radian.
    approach.isParallel = determinant <= 1e-12 * square1 * square2;
    if (!approach.isParallel) {
        approach.onFirst = std::clamp(
            (product * Dot(along2, between) - square2 * Dot(along1, between)) / determinant, 0.0,
            1.0);
    }
    approach.onSecond = FootOn(second, first.At(approach.onFirst));
    approach.onFirst = FootOn(first, second.At(approach.onSecond));
    approach.distance = Length(first.At(approach.onFirst) - second.At(approach.onSecond));
    return approach;
}

Polygon::Polygon(std::span<const Point> corners) : corners_(corners)
{
    if (corners.empty()) return;
    const Point base = corners.front();
    Point doubled, sum;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Segment edge = Edge(i);
        doubled = doubled + Cross(edge.start - base, edge.end - base);
        sum = sum + (edge.start - base);
        perimeter_ += edge.Length();
    }
    const double length = Length(doubled);
    area_ = length / 2;
    plane_.origin = base + sum * (1.0 / static_cast<double>(corners.size()));
    if (length > 0) plane_.normal = doubled * (1 / length);
    const Point n = {std::abs(plane_.normal.x), std::abs(plane_.normal.y),
                     std::abs(plane_.normal.z)};
    axis_ = n.x > n.y && n.x > n.z ? 0 : n.y > n.z ? 1 : 2;
}

double Polygon::OutOfPlane() const
{
    double most = 0;
    for (const Point& corner : corners_) most = std::max(most, std::abs(plane_.DistanceTo(corner)));
    return most;
}

PlanePoint Polygon::Flat(Point point) const
{
    const Point p = point - plane_.origin;
    if (axis_ == 0) return {p.y, p.z};
    if (axis_ == 1) return {p.z, p.x};
    return {p.x, p.y};
}

bool Polygon::IsConvex() const
{
    const std::size_t size = corners_.size();
    if (size < 3) return false;
    // All turns to one side, and once around: a direction changes its sign twice.
    int left = 0, right = 0, changes = 0;
    double last = 0;
    for (std::size_t i = 0; i < size + 2; ++i) {
        const PlanePoint a = Flat(corners_[i % size]);
        const PlanePoint b = Flat(corners_[(i + 1) % size]);
        const PlanePoint c = Flat(corners_[(i + 2) % size]);
        const double turn = CrossOf(a, b, c);
        left += turn > 0 ? 1 : 0;
        right += turn < 0 ? 1 : 0;
        const double step = b.u - a.u;
        if (step == 0) continue;
        changes += last * step < 0 ? 1 : 0;
        last = step;
    }
    return (left == 0 || right == 0) && changes <= 3;
}

Point Polygon::Centroid() const
{
    if (area_ <= 0) return plane_.origin;
    const Point base = plane_.origin;
    Point sum;
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        const Segment edge = Edge(i);
        const Point a = edge.start - base, b = edge.end - base;
        sum = sum + (a + b) * Dot(Cross(a, b), plane_.normal);
    }
    return base + sum * (1 / (6 * area_));
}

bool Polygon::IsInside(PlanePoint point) const
{
    bool isInside = false;
    PlanePoint a = Flat(corners_.back());
    for (const Point& corner : corners_) {
        const PlanePoint b = Flat(corner);
        if ((a.v > point.v) != (b.v > point.v)) {
            const double u = a.u + (b.u - a.u) * (point.v - a.v) / (b.v - a.v);
            if (point.u < u) isInside = !isInside;
        }
        a = b;
    }
    return isInside;
}

bool Polygon::Contains(Point point, double tolerance) const
{
    if (corners_.empty() || std::abs(plane_.DistanceTo(point)) > tolerance) return false;
    if (area_ > 0 && IsInside(Flat(point))) return true;
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        if (Distance(Edge(i), point) <= tolerance) return true;
    }
    return false;
}

}  // namespace tamur::host
