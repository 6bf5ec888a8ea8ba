// Points that are one within a tolerance.
#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "host/structure/geometry.h"

namespace tamur::host {

// Gives points numbers, the same to those within the tolerance of one that has a number already
// (of several the nearest, of equally near ones the first). Each takes constant time: a cell holds
// few points that are further apart than the tolerance.
class PointMerger {
 public:
    // `origin` is near the points; `count` is how many there will be at most.
    PointMerger(double tolerance, Point origin, std::size_t count);

    // Appends the number of each point.
    void AddNumbersOf(std::span<const Point> points, std::vector<std::uint32_t>& numbers);

    // Each number's point. Nothing can be added after that.
    [[nodiscard]] std::vector<Point> TakePoints() { return std::move(points_); }

 private:
    struct Cell {
        std::int64_t x, y, z;
    };
    struct Link {
        std::uint32_t hash;
        std::uint32_t next;  // the one before it in its slot
    };
    static constexpr std::size_t kBlock = 32;

    [[nodiscard]] Point PlaceOf(Point point) const;
    [[nodiscard]] std::uint32_t& SlotOf(std::uint32_t hash) { return slots_[hash & mask_]; }
    [[nodiscard]] std::uint32_t NumberOf(Point point, std::uint32_t hash);
    void AddBlock(std::span<const Point> points, std::vector<std::uint32_t>& numbers);
    void SearchSlot(std::uint32_t hash, Point point, std::uint32_t& nearest, double& square);
    void Grow();

    double tolerance_, factor_;
    Point origin_;
    std::vector<std::uint32_t> slots_;  // the last point of the cells with that hash
    std::size_t mask_;
    std::vector<Point> points_;
    std::vector<Link> links_;  // of each point
};

}  // namespace tamur::host
