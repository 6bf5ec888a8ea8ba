// Which records of a table are kept, when some are taken out again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tamur {

// Taking out costs nothing but a mark, however many records follow; the n-th record that is kept
// is found in a logarithm of their number.
class KeptRanks {
 public:
    // How many are kept.
    [[nodiscard]] std::size_t Size() const { return total_ - removed_; }

    // Room for one more record, so that Append cannot fail.
    void Reserve();
    void Append() { ++total_; }

    // Takes out a record that is kept.
    void Remove(std::size_t place);

    // Forgets the records at the end that are taken out; returns how many records are left.
    std::size_t DropTail();

    // Makes PlaceOf right after records were added or taken out. Allocates nothing.
    void Settle();

    // The place of the kept record with that rank, right after Settle.
    [[nodiscard]] std::size_t PlaceOf(std::size_t rank) const;

 private:
    static constexpr std::size_t kBlock = 64;

    struct Block {
        std::uint64_t removed = 0;     // a bit for each record
        std::uint32_t keptBefore = 0;  // in the blocks before
    };

    [[nodiscard]] bool IsRemoved(std::size_t place) const
    {
        return (blocks_[place / kBlock].removed >> place % kBlock & 1) != 0;
    }

    std::vector<Block> blocks_;  // at least as many as the records need
    std::size_t total_ = 0;
    std::size_t removed_ = 0;
    std::size_t settled_ = 0;  // blocks that are counted right
};

}  // namespace tamur
