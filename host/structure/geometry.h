// Points, segments and plane polygons.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>

namespace tamur::host {

struct Point {
    double x = 0, y = 0, z = 0;

    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    friend Point operator*(Point a, double factor)
    {
        return {a.x * factor, a.y * factor, a.z * factor};
    }
    friend bool operator==(Point, Point) = default;
};

inline double Dot(Point a, Point b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Point Cross(Point a, Point b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(Point a)
{
    return std::sqrt(Dot(a, a));
}

struct Segment {
    Point start, end;

    [[nodiscard]] Point At(double place) const { return start + (end - start) * place; }
    [[nodiscard]] double Length() const { return host::Length(end - start); }
};

// Where on the segment, from 0 to 1, the foot of the point is.
[[nodiscard]] inline double FootOn(const Segment& segment, Point point)
{
    const Point along = segment.end - segment.start;
    const double square = Dot(along, along);
    return square > 0 ? std::clamp(Dot(point - segment.start, along) / square, 0.0, 1.0) : 0;
}

[[nodiscard]] inline double Distance(const Segment& segment, Point point)
{
    return Length(point - segment.At(FootOn(segment, point)));
}

// Where two segments are nearest to each other.
struct Approach {
    double onFirst = 0, onSecond = 0;  // from 0 to 1
    double distance = 0;
    bool isParallel = false;
};
[[nodiscard]] Approach ApproachOf(const Segment& first, const Segment& second);

struct Plane {
    Point origin;
    Point normal;  // of length 1, or 0 when the polygon has no area

    [[nodiscard]] double DistanceTo(Point point) const { return Dot(point - origin, normal); }
};

struct PlanePoint {
    double u = 0, v = 0;
};

// A polygon in space: closed, in either sense of rotation.
class Polygon {
 public:
    explicit Polygon(std::span<const Point> corners);

    [[nodiscard]] const Plane& ThePlane() const { return plane_; }
    [[nodiscard]] double Area() const { return area_; }
    [[nodiscard]] double Perimeter() const { return perimeter_; }
    // How far the corners are out of its plane, at most.
    [[nodiscard]] double OutOfPlane() const;
    // Neither a notch nor a crossing.
    [[nodiscard]] bool IsConvex() const;
    [[nodiscard]] Point Centroid() const;

    [[nodiscard]] std::size_t Size() const { return corners_.size(); }
    [[nodiscard]] Segment Edge(std::size_t index) const
    {
        return {corners_[index], corners_[index + 1 < corners_.size() ? index + 1 : 0]};
    }

    // Whether the point is in the polygon or within `tolerance` of it.
    [[nodiscard]] bool Contains(Point point, double tolerance) const;

    // As seen along the axis of space that is nearest to the normal.
    [[nodiscard]] PlanePoint Flat(Point point) const;

 private:
    [[nodiscard]] bool IsInside(PlanePoint point) const;

    std::span<const Point> corners_;
    Plane plane_;
    double area_ = 0;
    double perimeter_ = 0;
    int axis_ = 2;
};

}  // namespace tamur::host
