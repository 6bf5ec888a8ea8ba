#include "host/structure/box_tree.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace tamur::host {
namespace {

constexpr int kBits = 20;  // of each coordinate on the curve

// Coordinates as whole numbers, fine where most of the boxes are: a few that are far away do not
// make the rest coarse.
class Scale {
 public:
    explicit Scale(std::vector<double> sample)
    {
        std::sort(sample.begin(), sample.end());
        middle_ = sample[sample.size() / 2];
        const double quarters = sample[sample.size() * 3 / 4] - sample[sample.size() / 4];
        const double whole = sample.back() - sample.front();
        const double width = quarters > 0 ? 2 * quarters : whole;
        factor_ = std::isfinite(1 / width) ? 1 / width : 0;
    }

    [[nodiscard]] std::uint64_t operator()(double coordinate) const
    {
        const double place = (coordinate - middle_) * factor_;
        const double bounded =  // from -1 to 1
            std::isinf(place) ? std::copysign(1.0, place) : place / (1 + std::abs(place));
        return static_cast<std::uint64_t>((bounded + 1) * (0.5 * ((1 << kBits) - 1)));
    }

 private:
    double middle_, factor_;
};

// Twice its middle; of a box around nothing, which may be anywhere, the origin.
Point MiddleOf(const Box& box)
{
    return box.low.x <= box.high.x ? box.low + box.high : Point();
}

// Two zeros after each bit.
std::uint64_t Spread(std::uint64_t bits)
{
    bits = (bits | (bits << 32)) & 0x1F00000000FFFF;
    bits = (bits | (bits << 16)) & 0x1F0000FF0000FF;
    bits = (bits | (bits << 8)) & 0x100F00F00F00F00F;
    bits = (bits | (bits << 4)) & 0x10C30C30C30C30C3;
    return (bits | (bits << 2)) & 0x1249249249249249;
}

struct Keyed {
    std::uint64_t key;
    std::uint32_t index;
};

// By their keys; equal ones stay in their order.
void SortByKey(std::vector<Keyed>& items)
{
    constexpr int kDigit = 12;
    std::vector<Keyed> other(items.size());
    for (int shift = 0; shift < 3 * kBits; shift += kDigit) {
        std::array<std::uint32_t, (1 << kDigit) + 1> starts = {};
        const auto digitOf = [shift](const Keyed& item) {
            return static_cast<std::size_t>((item.key >> shift) & ((1 << kDigit) - 1));
        };
        for (const Keyed& item : items) ++starts[digitOf(item) + 1];
        for (std::size_t i = 1; i < starts.size(); ++i) starts[i] += starts[i - 1];
        for (const Keyed& item : items) other[starts[digitOf(item)]++] = item;
        items.swap(other);
    }
}

void Merge(Box& box, const Box& other)
{
    if (other.low.x > other.high.x) return;
    box.Add(other.low);
    box.Add(other.high);
}

}  // namespace

Box BoxOf(const Segment& segment)
{
    Box box;
    box.Add(segment.start);
    box.Add(segment.end);
    return box;
}

bool Meets(const Box& box, const Segment& segment)
{
    // The axes of the box are the caller's to test first; these are the products with them.
    const Point half = (box.high - box.low) * 0.5;
    const Point along = (segment.end - segment.start) * 0.5;
    const Point middle = (segment.start + segment.end - box.low - box.high) * 0.5;
    const Point size = {std::abs(along.x), std::abs(along.y), std::abs(along.z)};
    const Point turn = Cross(middle, along);
    return std::abs(turn.x) <= half.y * size.z + half.z * size.y &&
           std::abs(turn.y) <= half.x * size.z + half.z * size.x &&
           std::abs(turn.z) <= half.x * size.y + half.y * size.x;
}

bool Meets(const Box& box, const Plane& plane)
{
    const Point half = (box.high - box.low) * 0.5;
    const Point n = {std::abs(plane.normal.x), std::abs(plane.normal.y), std::abs(plane.normal.z)};
    return std::abs(plane.DistanceTo((box.low + box.high) * 0.5)) <= Dot(half, n);
}

BoxTree::BoxTree(const std::vector<Box>& boxes)
{
    if (boxes.empty()) return;
    SortByPlace(boxes);
    const auto count = static_cast<std::uint32_t>(order_.size());
    leaves_ = std::bit_ceil((count + kLeaf - 1) / kLeaf);
    nodes_.resize(std::size_t{2} * leaves_);
    for (std::uint32_t i = 0; i < count; ++i) Merge(nodes_[leaves_ + i / kLeaf], boxes_[i]);
    for (std::uint32_t node = leaves_ - 1; node > 0; --node) {
        Merge(nodes_[node], nodes_[2 * node]);
        Merge(nodes_[node], nodes_[2 * node + 1]);
    }
}

void BoxTree::SortByPlace(const std::vector<Box>& boxes)
{
    constexpr std::size_t kSample = 1000;
    std::array<std::vector<double>, 3> samples;
    const std::size_t step = boxes.size() / kSample + 1;
    for (std::size_t i = 0; i < boxes.size(); i += step) {
        const Point middle = MiddleOf(boxes[i]);
        samples[0].push_back(middle.x);
        samples[1].push_back(middle.y);
        samples[2].push_back(middle.z);
    }
    const Scale x(std::move(samples[0])), y(std::move(samples[1])), z(std::move(samples[2]));
    std::vector<Keyed> items;
    items.reserve(boxes.size());
    for (const Box& box : boxes) {
        const Point middle = MiddleOf(box);
        const std::uint64_t key =
            Spread(x(middle.x)) | Spread(y(middle.y)) << 1 | Spread(z(middle.z)) << 2;
        items.push_back({key, static_cast<std::uint32_t>(items.size())});
    }
    SortByKey(items);
    boxes_.reserve(items.size());
    order_.reserve(items.size());
    for (const Keyed& item : items) {
        order_.push_back(item.index);
        boxes_.push_back(boxes[item.index]);
    }
}

}  // namespace tamur::host
