// Values by number, ascending.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

namespace tamur {

// Adding and finding take a logarithm of the size, in any order, and so does finding by rank. It is
// a sorted array cut into leaves: adding moves what is behind in one leaf, and few cache lines are
// touched where a tree of nodes would touch one at each level.
template <class Value>
class SortedMap {
    static_assert(std::is_trivially_copyable_v<Value>);

 public:
    [[nodiscard]] std::size_t Size() const { return size_; }

    // Null when there is none.
    [[nodiscard]] const Value* Find(std::int32_t number) const
    {
        if (leaves_.empty()) return nullptr;
        const std::vector<Entry>& entries = leaves_[LeafFor(number)].entries;
        const auto place = PlaceIn(entries, number);
        return place != entries.end() && place->number == number ? &place->value : nullptr;
    }
    [[nodiscard]] Value* Find(std::int32_t number)
    {
        return const_cast<Value*>(std::as_const(*this).Find(number));
    }

    // The value of that number; when it is a new one, `Value()`. When memory runs out, nothing has
    // changed.
    [[nodiscard]] Value& FindOrAdd(std::int32_t number)
    {
        if (leaves_.empty()) leaves_.emplace_back();
        std::size_t leaf = LeafFor(number);
        auto place = PlaceIn(leaves_[leaf].entries, number);
        if (place != leaves_[leaf].entries.end() && place->number == number) return place->value;
        if (leaves_[leaf].entries.size() == kLeafSize) {
            Split(leaf);
            leaf = LeafFor(number);
            place = PlaceIn(leaves_[leaf].entries, number);
        }
        place = leaves_[leaf].entries.insert(place, {number, Value()});
        ++size_;
        return place->value;
    }

    // Makes ranks right after numbers were added. Allocates nothing.
    void Settle()
    {
        std::size_t rank = 0;
        for (Leaf& leaf : leaves_) {
            leaf.firstRank = static_cast<std::uint32_t>(rank);
            rank += leaf.entries.size();
        }
    }

    // The value of the number with that rank, right after Settle.
    [[nodiscard]] const Value& AtRank(std::size_t rank) const
    {
        const auto leaf = std::partition_point(
            leaves_.begin() + 1, leaves_.end(),
            [rank](const Leaf& candidate) { return candidate.firstRank <= rank; });
        return leaf[-1].entries[rank - leaf[-1].firstRank].value;
    }

 private:
    struct Entry {
        std::int32_t number;
        Value value;
    };

    struct Leaf {
        std::vector<Entry> entries;  // only those of the first leaf may be none
        std::int32_t smallest = 0;   // their first number; unused in the first leaf
        std::uint32_t firstRank = 0;
    };

    static constexpr std::size_t kLeafSize = 256;

    [[nodiscard]] std::size_t LeafFor(std::int32_t number) const
    {
        const auto next = std::partition_point(
            leaves_.begin() + 1, leaves_.end(),
            [number](const Leaf& candidate) { return candidate.smallest <= number; });
        return static_cast<std::size_t>(next - leaves_.begin()) - 1;
    }

    template <class Entries>
    [[nodiscard]] static auto PlaceIn(Entries& entries, std::int32_t number)
    {
        return std::partition_point(
            entries.begin(), entries.end(),
            [number](const Entry& candidate) { return candidate.number < number; });
    }

    // The last leaf keeps all but one: files mostly number upwards, and then leaves stay full.
    void Split(std::size_t leaf)
    {
        std::vector<Entry>& entries = leaves_[leaf].entries;
        const std::size_t kept = leaf + 1 == leaves_.size() ? kLeafSize - 1 : kLeafSize / 2;
        Leaf next;
        next.entries.assign(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
        next.smallest = entries[kept].number;
        leaves_.insert(leaves_.begin() + static_cast<std::ptrdiff_t>(leaf) + 1, std::move(next));
        // Growing may have moved the leaves.
        std::vector<Entry>& halved = leaves_[leaf].entries;
        halved.erase(halved.begin() + static_cast<std::ptrdiff_t>(kept), halved.end());
    }

    std::vector<Leaf> leaves_;
    std::size_t size_ = 0;
};

}  // namespace tamur
