// What FailingFiles counts, for the functions that stand in for the system's.
#pragma once

#include "failures/failing_files.h"

namespace tamur::test {

[[nodiscard]] bool IsActive();

// Counts a call; false when it must fail.
bool MaySucceed(FileCall call);

// Counts a read; how many bytes of `size` it may give, and nothing when it must fail.
inline constexpr std::size_t kReadFails = ~std::size_t{0};
std::size_t AllowedRead(std::uint64_t offset, std::size_t size);

void NoteOpened();
void NoteClosed();

}  // namespace tamur::test
