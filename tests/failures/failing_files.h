// The component's calls of the system's file functions, counted and made to fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "linked/memory_watch.h"

namespace tamur::test {

// What an import does with its file.
enum class FileCall { kOpen, kAskForKind, kRead, kClose };

// While it lives, reads give at most `piece` bytes, and calls may fail. One at a time.
class FailingFiles {
 public:
    explicit FailingFiles(std::size_t piece = ~std::size_t{0});
    FailingFiles(const FailingFiles&) = delete;
    FailingFiles& operator=(const FailingFiles&) = delete;
    ~FailingFiles();

    // Makes the call of that kind with that number fail, counted from 1.
    void FailAt(FileCall call, std::uint64_t number, Failing how);

    // Makes every read at that offset or after it fail.
    void FailReadsFrom(std::uint64_t offset);

    // Has something happen to the file before the read with that number, counted from 1.
    void BeforeRead(std::uint64_t number, std::function<void()> happens);

    [[nodiscard]] std::uint64_t Calls(FileCall call) const;
    [[nodiscard]] std::int64_t FilesOpen() const;  // opened and not closed since it began
};

}  // namespace tamur::test
