// What a thread allocates, counted and made to fail.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tamur::test {

enum class Failing { kOnce, kFromThereOn };

// While it lives, it watches the thread that made it: everything the component in this program
// allocates by new and malloc and, on Windows, as strings and task memory. One at a time.
class MemoryWatch {
 public:
    // The first exception of a thread may make something that stays: it is thrown here, unless the
    // call that may fail is to be the first of its process.
    enum class Thread { kPrepared, kAsItIs };
    explicit MemoryWatch(Thread thread = Thread::kPrepared);
    MemoryWatch(const MemoryWatch&) = delete;
    MemoryWatch& operator=(const MemoryWatch&) = delete;
    ~MemoryWatch();

    // Makes the allocation with that number fail, counted from 1 and from now on.
    void FailAt(std::uint64_t allocation, Failing how);
    void FailNoMore();
    [[nodiscard]] bool HasFailed() const;  // since FailAt

    // Since the watch began.
    [[nodiscard]] std::uint64_t Allocations() const;
    [[nodiscard]] std::int64_t BlocksAlive() const;
    [[nodiscard]] std::int64_t BytesAlive() const;
    [[nodiscard]] std::int64_t PeakBytes() const;
};

}  // namespace tamur::test
