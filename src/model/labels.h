// The labels of elements.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "model/arena.h"
#include "model/list.h"
#include "model/text.h"

namespace tamur {

// How many labels a line announces, and how many it holds. Those that it does not hold are empty.
struct LabelCounts {
    std::uint16_t announced = 0;
    std::uint16_t held = 0;
};
static_assert(kLargestCount <= UINT16_MAX);

// The labels of one element: their counts and then the texts, one after the other as WriteText
// lays them out, at an 8-byte aligned place of an arena.
class Labels {
 public:
    Labels() = default;
    explicit Labels(const char* block) : block_(block) {}

    [[nodiscard]] LabelCounts Counts() const
    {
        LabelCounts counts;
        if (block_ != nullptr) std::memcpy(&counts, block_, sizeof counts);
        return counts;
    }

    // Calls `visit(text)` for each label that the line holds.
    template <class Visit>
    void ForEach(Visit visit) const
    {
        const int held = Counts().held;
        if (held == 0) return;
        Text label = TextAt(block_ + sizeof(LabelCounts));
        for (int i = 0; i < held; ++i) {
            visit(label);
            label = TextAt(EndOf(label));
        }
    }

    // Has the processor fetch them.
    void Prefetch() const { __builtin_prefetch(block_); }

 private:
    const char* block_ = nullptr;  // null when there are none
};

// Where the labels of an element are, kept apart from the labels themselves: it can be told, and
// their number, also when they are gone.
class LabelPlaces {
 public:
    LabelPlaces() = default;
    LabelPlaces(const Labels& labels, Arena& arena);

    [[nodiscard]] LabelCounts Counts() const { return counts_; }

    template <class Visit>
    void ForEach(Visit visit) const
    {
        for (int i = 0; i < counts_.held; ++i) visit(texts_[i]);
    }

 private:
    const Text* texts_ = nullptr;  // in an arena; null when there are none
    LabelCounts counts_;
};

}  // namespace tamur
