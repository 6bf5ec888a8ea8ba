#include "host/structure/point_merger.h"

#include <bit>

namespace tamur::host {
namespace {

constexpr std::uint32_t kNone = ~std::uint32_t{0};
constexpr double kCell = 8;  // in tolerances: few points are so near a cell's side that two count

std::int64_t CellOf(double place)
{
    return static_cast<std::int64_t>(std::floor(place));
}

// Which cells hold what is within a tolerance, along one axis.
struct Reach {
    std::int64_t first, last;
};
Reach ReachOf(double place)
{
    const double cell = std::floor(place);
    const double rest = (place - cell) * kCell;
    const std::int64_t own = CellOf(place);
    return {rest <= 1 ? own - 1 : own, rest >= kCell - 1 ? own + 1 : own};
}

}  // namespace

PointMerger::PointMerger(double tolerance, Point origin, std::size_t count)
    : tolerance_(tolerance), origin_(origin), slots_(std::bit_ceil(count / 2 + 1), kNone)
{
}

std::size_t PointMerger::SlotOf(Cell cell) const
{
    std::uint64_t hash = static_cast<std::uint64_t>(cell.x) * 0x9E3779B97F4A7C15;
    hash = (hash ^ static_cast<std::uint64_t>(cell.y)) * 0xBF58476D1CE4E5B9;
    hash = ((hash ^ (hash >> 29)) + static_cast<std::uint64_t>(cell.z)) * 0x94D049BB133111EB;
    return static_cast<std::size_t>(hash ^ (hash >> 32)) & (slots_.size() - 1);
}

void PointMerger::SearchCell(Cell cell, Point point, std::uint32_t& nearest, double& square) const
{
    for (std::uint32_t i = slots_[SlotOf(cell)]; i != kNone; i = next_[i]) {
        const Point between = points_[i] - point;
        const double other = Dot(between, between);
        if (other > square || (other == square && nearest != kNone)) continue;
        square = other;
        nearest = i;
        if (square == 0) return;  // nothing is nearer: the usual case
    }
}

void PointMerger::Fetch(Point point) const
{
    const Point place = (point - origin_) * (1 / (kCell * tolerance_));
    __builtin_prefetch(&slots_[SlotOf({CellOf(place.x), CellOf(place.y), CellOf(place.z)})]);
}

std::uint32_t PointMerger::NumberOf(Point point)
{
    const Point place = (point - origin_) * (1 / (kCell * tolerance_));
    const Cell own = {CellOf(place.x), CellOf(place.y), CellOf(place.z)};
    std::uint32_t nearest = kNone;
    double square = tolerance_ * tolerance_;
    SearchCell(own, point, nearest, square);
    if (square == 0) return nearest;
    const Reach x = ReachOf(place.x), y = ReachOf(place.y), z = ReachOf(place.z);
    for (std::int64_t i = x.first; i <= x.last; ++i) {
        for (std::int64_t k = y.first; k <= y.last; ++k) {
            for (std::int64_t m = z.first; m <= z.last; ++m) {
                SearchCell({i, k, m}, point, nearest, square);
            }
        }
    }
    if (nearest != kNone) return nearest;
    const auto number = static_cast<std::uint32_t>(points_.size());
    std::uint32_t& slot = slots_[SlotOf(own)];
    next_.push_back(slot);
    points_.push_back(point);
    slot = number;
    return number;
}

}  // namespace tamur::host
