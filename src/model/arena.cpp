#include "model/arena.h"

#include <algorithm>
#include <bit>

namespace tamur {
namespace {

// Small models stay small; large ones take few blocks, large enough for large pages. A new one is
// at most a quarter of what is there: that much may be left unused.
constexpr std::size_t kFirstBlock = std::size_t{16} << 10;
constexpr std::size_t kLargestBlock = std::size_t{4} << 20;

}  // namespace

Arena::~Arena()
{
    for (char* const block : blocks_) platform::FreeBlock(block);
}

std::size_t Arena::UsualBlock() const
{
    return std::clamp(std::bit_floor(total_ / 4), kFirstBlock, kLargestBlock);
}

char* Arena::AddBlock(std::size_t size)
{
    blocks_.push_back(nullptr);
    try {
        blocks_.back() = static_cast<char*>(platform::AllocateBlock(size));
    } catch (...) {
        blocks_.pop_back();
        throw;
    }
    total_ += size;
    return blocks_.back();
}

void Arena::StartBlock(std::size_t size)
{
    // Whatever is taken, a multiple of the alignment is taken.
    const std::size_t needed = (size + kAlignment - 1) / kAlignment * kAlignment;
    const std::size_t capacity = std::max(UsualBlock(), needed + sanitizer::kGap);
    next_ = AddBlock(capacity);
    end_ = next_ + capacity;
    sanitizer::Forbid(next_, capacity);
}

char* Arena::AllocateFromBlock(std::size_t size)
{
    // A large piece gets a block of its own; what is left of the current one is not given up.
    if (size > UsualBlock() / 4) return AddBlock(size);
    StartBlock(size);
    return Allocate(size);
}

}  // namespace tamur
