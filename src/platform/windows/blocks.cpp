#include <cstdlib>
#include <new>

#include "platform/platform.h"

namespace tamur::platform {

void* AllocateBlock(std::size_t size)
{
    void* const block = std::malloc(size);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void FreeBlock(void* block) noexcept
{
    std::free(block);
}

}  // namespace tamur::platform
