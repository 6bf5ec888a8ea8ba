#include <sys/mman.h>

#include <cstdlib>

#include "platform/platform.h"

namespace tamur::platform {

void* AllocateBlock(std::size_t size)
{
    constexpr std::size_t kLargePage = std::size_t{2} << 20;
    const bool isLarge = size >= kLargePage && size % kLargePage == 0;
    void* const block = isLarge ? std::aligned_alloc(kLargePage, size) : std::malloc(size);
    if (block == nullptr) ThrowBadAlloc();
    // Touching memory for the first time is a good part of an import; large pages make it rare.
    if (isLarge) (void)madvise(block, size, MADV_HUGEPAGE);
    return block;
}

void FreeBlock(void* block) noexcept
{
    std::free(block);
}

}  // namespace tamur::platform
