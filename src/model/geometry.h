#pragma once

#include "model/list.h"

namespace tamur {

struct Point {
    double x = 0, y = 0, z = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Segment {
    Point start, end;
};

// The corners of a polygon.
using Polygon = List<Point>;

}  // namespace tamur
