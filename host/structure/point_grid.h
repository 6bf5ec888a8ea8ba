// Points in cells, for what is about as large as a cell.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "host/structure/box_tree.h"
#include "host/structure/geometry.h"

namespace tamur::host {

// Finds in a few steps what a tree finds in tens. It declines what would take many: long things,
// and places where points are dense.
class PointGrid {
 public:
    PointGrid(const std::vector<Point>& points, double cell);

    // Calls use(index, point) for points in the box and some around it, each once. False, without
    // a call, when there are too many.
    template <class Use>
    bool Visit(const Box& box, const Use& use) const;

 private:
    struct Item {
        Point point;
        std::uint32_t index;
    };
    struct Slots {
        std::array<std::uint32_t, 48> values;
        std::size_t count = 0;
    };
    static constexpr std::uint32_t kMostItems = 256;

    [[nodiscard]] std::uint32_t SlotOf(std::int64_t x, std::int64_t y, std::int64_t z) const;
    [[nodiscard]] std::uint32_t SlotOf(Point point) const;
    [[nodiscard]] bool FindSlots(const Box& box, Slots& slots) const;

    double factor_;
    std::uint32_t mask_;
    std::vector<std::uint32_t> starts_;  // of the items of each slot
    std::vector<Item> items_;
};

template <class Use>
bool PointGrid::Visit(const Box& box, const Use& use) const
{
    Slots slots;
    if (!FindSlots(box, slots)) return false;
    for (std::size_t i = 0; i < slots.count; ++i) {
        for (std::uint32_t k = starts_[slots.values[i]]; k < starts_[slots.values[i] + 1]; ++k) {
            use(items_[k].index, items_[k].point);
        }
    }
    return true;
}

}  // namespace tamur::host
