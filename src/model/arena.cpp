#include "model/arena.h"

#include <algorithm>

namespace tamur {
namespace {

// Small models stay small; large ones take few blocks, large enough for large pages.
constexpr std::size_t kFirstBlock = std::size_t{16} << 10;
constexpr std::size_t kLargestBlock = std::size_t{4} << 20;

}  // namespace

Arena::~Arena()
{
    for (char* const block : blocks_) platform::FreeBlock(block);
}

std::size_t Arena::UsualBlock() const
{
    return std::min(kLargestBlock, kFirstBlock << std::min<std::size_t>(blocks_.size() / 2, 16));
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
