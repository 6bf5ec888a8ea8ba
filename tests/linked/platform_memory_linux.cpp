#include "linked/platform_memory.h"

#include <malloc.h>
#include <pthread.h>

#include "linked/watched_allocations.h"

namespace tamur::test {

ThreadId ThisThread()
{
    return pthread_self();
}

std::size_t SizeOfBlock(void* block)
{
    return malloc_usable_size(block);
}

const bool kFreedCanBeHadAgain = false;
const bool kTaskMemoryIsMalloc = true;

}  // namespace tamur::test

// The one allocation function that the other run time does not have.
extern "C" {

void* __real_aligned_alloc(std::size_t alignment, std::size_t size);

void* __wrap_aligned_alloc(std::size_t alignment, std::size_t size)
{
    using namespace tamur::test;
    void* const block = MayAllocate(size) ? __real_aligned_alloc(alignment, size) : nullptr;
    if (block != nullptr) NoteAllocated(SizeOfBlock(block));
    return block;
}

}  // extern "C"
