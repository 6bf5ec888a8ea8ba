// What stands in for the run time's allocation functions: the linker leads every malloc, calloc and
// free of this program here (--wrap).
#include <cstdlib>
#include <new>

#include "linked/platform_memory.h"
#include "linked/watched_allocations.h"

using tamur::test::MayAllocate;
using tamur::test::NoteAllocated;
using tamur::test::NoteFreed;
using tamur::test::SizeOfBlock;

extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
void __real_free(void* block);

void* __wrap_malloc(std::size_t size)
{
    void* const block = MayAllocate(size) ? __real_malloc(size) : nullptr;
    if (block != nullptr) NoteAllocated(SizeOfBlock(block));
    return block;
}

void* __wrap_calloc(std::size_t count, std::size_t size)
{
    void* const block = MayAllocate(count * size) ? __real_calloc(count, size) : nullptr;
    if (block != nullptr) NoteAllocated(SizeOfBlock(block));
    return block;
}

void* __wrap_realloc(void* block, std::size_t size)
{
    const std::size_t before = block != nullptr ? SizeOfBlock(block) : 0;
    void* const moved = MayAllocate(size) ? __real_realloc(block, size) : nullptr;
    if (moved == nullptr) return nullptr;
    if (block != nullptr) NoteFreed(before);
    NoteAllocated(SizeOfBlock(moved));
    return moved;
}

void __wrap_free(void* block)
{
    if (block != nullptr) NoteFreed(SizeOfBlock(block));
    __real_free(block);
}

}  // extern "C"

void* operator new(std::size_t size)
{
    for (;;) {
        if (void* const block = std::malloc(size == 0 ? 1 : size)) return block;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) throw std::bad_alloc();
        handler();
    }
}

// As the run time has it: it throws and catches, which takes memory of its own.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
try {
    return ::operator new(size);
} catch (...) {
    return nullptr;
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

// By default these call the ones above, but a sanitizer has its own, which would go uncounted.
void* operator new[](std::size_t size)
{
    return ::operator new(size);
}

void operator delete[](void* block) noexcept
{
    ::operator delete(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    ::operator delete(block);
}
