#pragma once

#include <cstdint>

namespace tamur {

struct Point {
    double x = 0, y = 0, z = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Segment {
    Point start, end;
};

// The corners of a polygon, in an arena; null when there are none.
struct Polygon {
    const Point* corners = nullptr;
    std::int32_t count = 0;
};

}  // namespace tamur
