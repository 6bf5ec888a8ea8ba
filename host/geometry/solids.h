// Bars and surfaces as bodies.
#pragma once

#include <cstdint>
#include <vector>

#include "host/geometry/section_outline.h"
#include "host/geometry/triangles.h"

namespace tamur::host {

struct Solid {
    std::vector<Point> points;
    std::vector<std::uint32_t> corners;  // three a triangle, counter-clockwise from outside
};

// Along x from 0 to 1, y and z as in the outlines, which have equally many points.
[[nodiscard]] Solid SolidOfBar(const std::vector<PlanePoint>& start,
                               const std::vector<PlanePoint>& end, Triangulator& triangulator);

// Triangles with half of the thickness on either side; without one, one side only. Its points are
// relative to `origin`.
void MakeSolid(const Triangles& triangles, Point normal, double thickness, Point origin,
               Solid& solid);

}  // namespace tamur::host
