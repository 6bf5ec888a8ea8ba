// This run time allocates when it throws the first exception of a thread, and when it throws one
// although memory has run out it first locks a mutex that it then allocates: without any memory
// left it ends the process. So some is kept back and given up just before the throw.
#include <atomic>
#include <cstdlib>
#include <new>

#include "platform/platform.h"

namespace tamur::platform {
namespace {

// Far more than those few blocks take.
constexpr std::size_t kKeptBack = std::size_t{16} << 10;

struct KeptBack {
    std::atomic<void*> block = nullptr;

    void Replace(void* by) { std::free(block.exchange(by)); }
    ~KeptBack() { Replace(nullptr); }
} keptBack;

}  // namespace

bool PrepareForBadAlloc() noexcept
{
    if (keptBack.block != nullptr) return true;
    void* const block = std::malloc(kKeptBack);
    keptBack.Replace(block);
    // cppcheck-suppress throwInNoexceptFunction ; handed over, not called
    std::set_new_handler(ThrowBadAlloc);
    return block != nullptr;
}

void ThrowBadAlloc()
{
    keptBack.Replace(nullptr);
    throw std::bad_alloc();
}

}  // namespace tamur::platform
