// Boxes in space, found by where they are.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "host/structure/geometry.h"

namespace tamur::host {

// How much a search may still do. Files can be made in which everything is near everything; a
// search in them ends when this is spent, and its result is known to be incomplete.
class Budget {
 public:
    explicit Budget(std::uint64_t steps) : left_(steps) {}

    bool Spend(std::uint64_t steps)
    {
        const bool isEnough = steps <= left_;
        left_ = isEnough ? left_ - steps : 0;
        return isEnough;
    }
    [[nodiscard]] bool IsSpent() const { return left_ == 0; }

 private:
    std::uint64_t left_;
};

struct Box {
    Point low = {kFar, kFar, kFar};
    Point high = {-kFar, -kFar, -kFar};

    void Add(Point point)
    {
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }
    [[nodiscard]] Box Grown(double by) const
    {
        const Point step = {by, by, by};
        Box box;
        box.low = low - step;
        box.high = high + step;
        return box;
    }
    [[nodiscard]] bool Meets(const Box& other) const
    {
        // All six at once: which of them says no cannot be foreseen.
        const int meets = int{low.x <= other.high.x} & int{other.low.x <= high.x} &
                          int{low.y <= other.high.y} & int{other.low.y <= high.y} &
                          int{low.z <= other.high.z} & int{other.low.z <= high.z};
        return meets != 0;
    }
    [[nodiscard]] bool Has(const Point& point) const
    {
        return low.x <= point.x && point.x <= high.x && low.y <= point.y && point.y <= high.y &&
               low.z <= point.z && point.z <= high.z;
    }
    [[nodiscard]] double Diagonal() const { return low.x <= high.x ? Length(high - low) : 0; }

    static constexpr double kFar = std::numeric_limits<double>::infinity();
};

[[nodiscard]] Box BoxOf(const Segment& segment);

// Whether the box meets the segment; as quick to say yes as boxes are near.
[[nodiscard]] bool Meets(const Box& box, const Segment& segment);
[[nodiscard]] bool Meets(const Box& box, const Plane& plane);

// A tree over boxes in the order of a curve that fills space. The sizes of the boxes may differ by
// any factor: a long one makes the boxes above it long, and no others.
class BoxTree {
 public:
    BoxTree() = default;
    explicit BoxTree(const std::vector<Box>& boxes);

    // Calls use(index) for every box for which, and for whose boxes above it, meets(box) holds.
    // False when the budget ended it.
    template <class Meets, class Use>
    bool Visit(Budget& budget, const Meets& meets, const Use& use) const;

    // Calls use(index, index) once for each pair of boxes that meet.
    template <class Use>
    bool VisitPairs(Budget& budget, const Use& use) const;

 private:
    static constexpr std::uint32_t kLeaf = 4;

    void SortByPlace(const std::vector<Box>& boxes);
    [[nodiscard]] std::uint32_t FirstOf(std::uint32_t node) const
    {
        return (node - leaves_) * kLeaf;
    }
    [[nodiscard]] std::uint32_t EndOf(std::uint32_t node) const
    {
        const auto count = static_cast<std::uint32_t>(order_.size());
        const std::uint32_t end = FirstOf(node) + kLeaf;
        return end < count ? end : count;
    }
    template <class Use>
    void UsePairs(std::uint32_t first, std::uint32_t second, const Use& use) const;

    std::uint32_t leaves_ = 0;          // a power of two
    std::vector<Box> nodes_;            // as a heap: 1 is the root, 2n and 2n + 1 are below n
    std::vector<Box> boxes_;            // in the order of the curve
    std::vector<std::uint32_t> order_;  // and which they are
};

template <class Meets, class Use>
bool BoxTree::Visit(Budget& budget, const Meets& meets, const Use& use) const
{
    if (order_.empty()) return true;
    std::uint32_t stack[64];
    int depth = 0;
    stack[depth++] = 1;
    std::uint64_t steps = 0;
    while (depth > 0) {
        const std::uint32_t node = stack[--depth];
        ++steps;
        if (!meets(nodes_[node])) continue;
        if (node < leaves_) {
            stack[depth++] = 2 * node + 1;
            stack[depth++] = 2 * node;
            continue;
        }
        for (std::uint32_t i = FirstOf(node); i < EndOf(node); ++i) {
            if (meets(boxes_[i])) use(order_[i]);
        }
        if (!budget.Spend(steps)) return false;
        steps = 0;
    }
    return budget.Spend(steps);
}

template <class Use>
void BoxTree::UsePairs(std::uint32_t first, std::uint32_t second, const Use& use) const
{
    for (std::uint32_t i = FirstOf(first); i < EndOf(first); ++i) {
        if (!boxes_[i].Meets(nodes_[second])) continue;
        for (std::uint32_t k = first == second ? i + 1 : FirstOf(second); k < EndOf(second); ++k) {
            if (boxes_[i].Meets(boxes_[k])) use(order_[i], order_[k]);
        }
    }
}

template <class Use>
bool BoxTree::VisitPairs(Budget& budget, const Use& use) const
{
    if (order_.empty()) return true;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> stack = {{1, 1}};
    const auto push = [&](std::uint32_t a, std::uint32_t b) {
        if (nodes_[a].Meets(nodes_[b])) stack.emplace_back(a, b);
    };
    while (!stack.empty()) {
        const auto [a, b] = stack.back();
        stack.pop_back();
        if (!budget.Spend(1)) return false;
        if (a >= leaves_) {
            if (!budget.Spend(kLeaf)) return false;
            UsePairs(a, b, use);
            continue;
        }
        push(2 * a, 2 * b);
        push(2 * a, 2 * b + 1);
        push(2 * a + 1, 2 * b + 1);
        if (a != b) push(2 * a + 1, 2 * b);
    }
    return true;
}

}  // namespace tamur::host
