#include <new>

#include "platform/platform.h"

namespace tamur::platform {

void* AllocateBlock(std::size_t size)
{
    return ::operator new(size);
}

void FreeBlock(void* block) noexcept
{
    ::operator delete(block);
}

}  // namespace tamur::platform
