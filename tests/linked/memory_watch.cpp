#include "linked/memory_watch.h"

#include <atomic>

#include "linked/platform_memory.h"
#include "linked/watched_allocations.h"

namespace tamur::test {
namespace {

constexpr std::uint64_t kNever = 0;

std::atomic<bool> isWatching = false;
ThreadId watched = 0;

struct Counts {
    std::uint64_t allocations = 0;
    std::int64_t blocks = 0;
    std::int64_t bytes = 0;
    std::int64_t peak = 0;
    std::uint64_t failAt = kNever;
    Failing how = Failing::kOnce;
    bool hasFailed = false;
    std::size_t freedSince = 0;
} counts;

bool IsWatched()
{
    return isWatching && ThisThread() == watched;
}

}  // namespace

bool MayAllocate(std::size_t bytes)
{
    if (!IsWatched()) return true;
    ++counts.allocations;
    if (counts.failAt == kNever || counts.allocations < counts.failAt) return true;
    if (counts.allocations > counts.failAt && counts.how == Failing::kOnce) return true;
    counts.hasFailed = true;
    if (!kFreedCanBeHadAgain || bytes > counts.freedSince) return false;
    counts.freedSince -= bytes;
    return true;
}

void NoteAllocated(std::size_t bytes)
{
    if (!IsWatched()) return;
    ++counts.blocks;
    counts.bytes += static_cast<std::int64_t>(bytes);
    if (counts.bytes > counts.peak) counts.peak = counts.bytes;
}

void NoteFreed(std::size_t bytes)
{
    if (!IsWatched()) return;
    --counts.blocks;
    if (counts.hasFailed) counts.freedSince += bytes;
    counts.bytes -= static_cast<std::int64_t>(bytes);
}

MemoryWatch::MemoryWatch(Thread thread)
{
    if (thread == Thread::kPrepared) {
        try {
            throw 0;
        } catch (int) {
        }
    }
    counts = {};
    watched = ThisThread();
    isWatching = true;
}

MemoryWatch::~MemoryWatch()
{
    isWatching = false;
}

void MemoryWatch::FailAt(std::uint64_t allocation, Failing how)
{
    counts.failAt = counts.allocations + allocation;
    counts.how = how;
    counts.hasFailed = false;
    counts.freedSince = 0;
}

void MemoryWatch::FailNoMore()
{
    counts.failAt = kNever;
}

bool MemoryWatch::HasFailed() const
{
    return counts.hasFailed;
}

std::uint64_t MemoryWatch::Allocations() const
{
    return counts.allocations;
}

std::int64_t MemoryWatch::BlocksAlive() const
{
    return counts.blocks;
}

std::int64_t MemoryWatch::BytesAlive() const
{
    return counts.bytes;
}

std::int64_t MemoryWatch::PeakBytes() const
{
    return counts.peak;
}

}  // namespace tamur::test
