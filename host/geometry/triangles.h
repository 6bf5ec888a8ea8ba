// Polygons with openings as triangles.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/geometry/ears.h"
#include "host/geometry/frames.h"

namespace tamur::host {

struct Triangles {
    // The corners of the outline, of the openings in their order, then points where edges cross.
    std::vector<Point> points;
    std::vector<std::uint32_t> corners;  // three each, counter-clockwise about the frame's z
    double area = 0;                     // in the plane of the frame
    // Whether that is the area of the outline less those of the openings. It is not when edges
    // cross, or openings lie on each other or reach out of the outline.
    bool isAsDrawn = false;
    // False for more edges that cross than can be followed, then there are no triangles; or for so
    // many openings that they are not cut out.
    bool isComplete = true;
};

// Keeps its memory from one polygon to the next.
class Triangulator {
 public:
    // The outline is cut as FrameOfPolygon() sees it: `frame` is its own. What is used stays the
    // triangulator's until the next call.
    const Triangles& Cut(const Frame& frame, std::span<const Point> outline,
                         std::span<const std::vector<Point>> openings = {});

 private:
    using Ring = std::vector<PlanePoint>;

    void Flatten(const Frame& frame, std::span<const Point> outline,
                 std::span<const std::vector<Point>> openings);
    void CutFan();
    void CutEars();
    void CutBands(const Frame& frame, Point origin);
    void Measure();

    std::vector<Ring> rings_;
    std::vector<PlanePoint> flat_;  // as triangles_.points
    double drawnArea_ = 0;
    Triangles triangles_;
    EarCutter ears_;
};

}  // namespace tamur::host
