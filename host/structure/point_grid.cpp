#include "host/structure/point_grid.h"

#include <algorithm>
#include <bit>
#include <span>

#include "host/structure/cells.h"

namespace tamur::host {
namespace {

std::int64_t CellAt(double coordinate, double factor)
{
    return CellOf(coordinate * factor + kCellShift);
}

}  // namespace

PointGrid::PointGrid(const std::vector<Point>& points, double cell)
    : factor_(1 / cell), mask_(std::bit_ceil(static_cast<std::uint32_t>(points.size()) + 1) - 1)
{
    starts_.assign(std::size_t{mask_} + 3, 0);
    std::vector<std::uint32_t> slots;
    slots.reserve(points.size());
    for (const Point& point : points) {
        slots.push_back(SlotOf(point));
        ++starts_[slots.back() + 2];
    }
    for (std::size_t i = 2; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
    items_.resize(points.size());
    for (std::uint32_t i = 0; i < points.size(); ++i) {
        items_[starts_[slots[i] + 1]++] = {points[i], i};
    }
    starts_.pop_back();
}

// Neighbours along x are in neighbouring slots, and in the same lines of the cache.
std::uint32_t PointGrid::SlotOf(std::int64_t x, std::int64_t y, std::int64_t z) const
{
    std::uint64_t hash = static_cast<std::uint64_t>(y) * 0xBF58476D1CE4E5B9;
    hash = ((hash ^ (hash >> 29)) + static_cast<std::uint64_t>(z)) * 0x94D049BB133111EB;
    return static_cast<std::uint32_t>((hash >> 32) + static_cast<std::uint64_t>(x)) & mask_;
}

std::uint32_t PointGrid::SlotOf(Point point) const
{
    return SlotOf(CellAt(point.x, factor_), CellAt(point.y, factor_), CellAt(point.z, factor_));
}

bool PointGrid::FindSlots(const Box& box, Slots& slots) const
{
    const std::int64_t x0 = CellAt(box.low.x, factor_), x1 = CellAt(box.high.x, factor_);
    const std::int64_t y0 = CellAt(box.low.y, factor_), y1 = CellAt(box.high.y, factor_);
    const std::int64_t z0 = CellAt(box.low.z, factor_), z1 = CellAt(box.high.z, factor_);
    // As real numbers, whose product cannot be too large.
    const double cells = static_cast<double>(x1 - x0 + 1) * static_cast<double>(y1 - y0 + 1) *
                         static_cast<double>(z1 - z0 + 1);
    if (cells > static_cast<double>(slots.values.size())) return false;
    std::uint32_t items = 0;
    for (std::int64_t x = x0; x <= x1; ++x) {
        for (std::int64_t y = y0; y <= y1; ++y) {
            for (std::int64_t z = z0; z <= z1; ++z) {
                const std::uint32_t slot = SlotOf(x, y, z);
                // Two cells may share a slot.
                const std::span<const std::uint32_t> known(slots.values.data(), slots.count);
                if (std::find(known.begin(), known.end(), slot) != known.end()) continue;
                if (starts_[slot] == starts_[slot + 1]) continue;
                slots.values[slots.count++] = slot;
                items += starts_[slot + 1] - starts_[slot];
            }
        }
    }
    return items <= kMostItems;
}

}  // namespace tamur::host
