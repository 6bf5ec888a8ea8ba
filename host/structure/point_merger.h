// Points that are one within a tolerance.
#pragma once

#include <cstdint>
#include <vector>

#include "host/structure/geometry.h"

namespace tamur::host {

// Gives points numbers, the same to those within the tolerance of one that has a number already
// (of several the nearest). Each takes constant time: a cell holds few points that are further
// apart than the tolerance.
class PointMerger {
 public:
    // `origin` is near the points; `count` is how many there will be, about.
    PointMerger(double tolerance, Point origin, std::size_t count);

    [[nodiscard]] std::uint32_t NumberOf(Point point);

    // Fetches what NumberOf will look at, some points before it.
    void Fetch(Point point) const;

    [[nodiscard]] std::vector<Point>& Points() { return points_; }

 private:
    struct Cell {
        std::int64_t x, y, z;
    };
    [[nodiscard]] std::size_t SlotOf(Cell cell) const;
    void SearchCell(Cell cell, Point point, std::uint32_t& nearest, double& square) const;

    double tolerance_;
    Point origin_;
    std::vector<std::uint32_t> slots_;  // the last point of the cells with that hash
    std::vector<std::uint32_t> next_;   // and the one before it
    std::vector<Point> points_;
};

}  // namespace tamur::host
