#include "model/kept_ranks.h"

#include <algorithm>
#include <bit>

namespace tamur {

void KeptRanks::Reserve()
{
    if (total_ == blocks_.size() * kBlock) blocks_.emplace_back();
}

void KeptRanks::Remove(std::size_t place)
{
    const std::size_t block = place / kBlock;
    blocks_[block].removed |= std::uint64_t{1} << place % kBlock;
    ++removed_;
    settled_ = std::min(settled_, block + 1);
}

std::size_t KeptRanks::DropTail()
{
    for (; total_ != 0 && IsRemoved(total_ - 1); --total_, --removed_) {
        blocks_[(total_ - 1) / kBlock].removed &= ~(std::uint64_t{1} << (total_ - 1) % kBlock);
    }
    settled_ = std::min(settled_, total_ / kBlock + 1);
    return total_;
}

void KeptRanks::Settle()
{
    for (; settled_ < blocks_.size(); ++settled_) {
        if (settled_ == 0) continue;
        const Block& previous = blocks_[settled_ - 1];
        const std::size_t kept = kBlock - static_cast<std::size_t>(std::popcount(previous.removed));
        blocks_[settled_].keptBefore = previous.keptBefore + static_cast<std::uint32_t>(kept);
    }
}

std::size_t KeptRanks::PlaceOf(std::size_t rank) const
{
    if (removed_ == 0) return rank;
    const auto next =
        std::partition_point(blocks_.begin() + 1, blocks_.end(),
                             [rank](const Block& block) { return block.keptBefore <= rank; });
    std::uint64_t kept = ~next[-1].removed;
    for (std::size_t i = next[-1].keptBefore; i < rank; ++i) kept &= kept - 1;
    return static_cast<std::size_t>(next - 1 - blocks_.begin()) * kBlock +
           static_cast<std::size_t>(std::countr_zero(kept));
}

}  // namespace tamur
