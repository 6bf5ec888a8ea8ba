#include "host/structure/point_merger.h"

#include <algorithm>
#include <array>

#include "host/structure/cells.h"
#include "host/structure/index.h"

namespace tamur::host {
namespace {

constexpr double kCell = 8;  // in tolerances: few points are so near a cell's side that two count
constexpr std::size_t kFirstSlots = 1024;

// Which cells hold what is within a tolerance, along one axis.
struct Reach {
    std::int64_t first, last;
};
Reach ReachOf(double place)
{
    const std::int64_t own = CellOf(place);
    const double rest = (place - static_cast<double>(own)) * kCell;
    return {rest <= 1 ? own - 1 : own, rest >= kCell - 1 ? own + 1 : own};
}

std::uint32_t HashOf(std::int64_t x, std::int64_t y, std::int64_t z)
{
    std::uint64_t hash = static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15;
    hash = (hash ^ static_cast<std::uint64_t>(y)) * 0xBF58476D1CE4E5B9;
    hash = ((hash ^ (hash >> 29)) + static_cast<std::uint64_t>(z)) * 0x94D049BB133111EB;
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

}  // namespace

PointMerger::PointMerger(double tolerance, Point origin, std::size_t count)
    : tolerance_(tolerance),
      factor_(1 / (kCell * tolerance)),
      origin_(origin),
      slots_(kFirstSlots, kNone),
      mask_(kFirstSlots - 1)
{
    // What is not used of it takes no memory; growing would take half as much again.
    points_.reserve(count);
    links_.reserve(count);
}

Point PointMerger::PlaceOf(Point point) const
{
    return (point - origin_) * factor_ + Point{kCellShift, kCellShift, kCellShift};
}

void PointMerger::SearchSlot(std::uint32_t hash, Point point, std::uint32_t& nearest,
                             double& square)
{
    for (std::uint32_t i = SlotOf(hash); i != kNone; i = links_[i].next) {
        const Point between = points_[i] - point;
        const double other = Dot(between, between);
        if (other > square || (other == square && i > nearest)) continue;
        square = other;
        nearest = i;
        if (square == 0) return;  // nothing is nearer: the usual case
    }
}

std::uint32_t PointMerger::NumberOf(Point point, std::uint32_t hash)
{
    std::uint32_t nearest = kNone;
    double square = tolerance_ * tolerance_;
    SearchSlot(hash, point, nearest, square);
    if (square == 0 && nearest != kNone) return nearest;
    const Point place = PlaceOf(point);
    const Reach x = ReachOf(place.x), y = ReachOf(place.y), z = ReachOf(place.z);
    for (std::int64_t i = x.first; i <= x.last; ++i) {
        for (std::int64_t k = y.first; k <= y.last; ++k) {
            for (std::int64_t m = z.first; m <= z.last; ++m) {
                if (const std::uint32_t other = HashOf(i, k, m); other != hash) {
                    SearchSlot(other, point, nearest, square);
                }
            }
        }
    }
    if (nearest != kNone) return nearest;
    if (points_.size() > mask_) Grow();
    const auto number = static_cast<std::uint32_t>(points_.size());
    std::uint32_t& slot = SlotOf(hash);
    points_.push_back(point);
    links_.push_back({hash, slot});
    slot = number;
    return number;
}

// Few slots stay in the caches; many make short lists.
void PointMerger::Grow()
{
    slots_.assign(2 * slots_.size(), kNone);
    mask_ = slots_.size() - 1;
    for (std::uint32_t i = 0; i < links_.size(); ++i) {
        std::uint32_t& slot = SlotOf(links_[i].hash);
        links_[i].next = slot;
        slot = i;
    }
}

// In steps over all points of the block, so that what they wait for comes at the same time.
void PointMerger::AddBlock(std::span<const Point> points, std::vector<std::uint32_t>& numbers)
{
    std::array<std::uint32_t, kBlock> hashes;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point place = PlaceOf(points[i]);
        hashes[i] = HashOf(CellOf(place.x), CellOf(place.y), CellOf(place.z));
        __builtin_prefetch(&SlotOf(hashes[i]));
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        const std::uint32_t first = SlotOf(hashes[i]);
        if (first == kNone) continue;
        __builtin_prefetch(&points_[first]);
        __builtin_prefetch(&links_[first]);
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        numbers.push_back(NumberOf(points[i], hashes[i]));
    }
}

void PointMerger::AddNumbersOf(std::span<const Point> points, std::vector<std::uint32_t>& numbers)
{
    for (; !points.empty(); points = points.subspan(std::min(points.size(), kBlock))) {
        AddBlock(points.first(std::min(points.size(), kBlock)), numbers);
    }
}

}  // namespace tamur::host
