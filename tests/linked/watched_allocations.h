// Where every allocation of this program passes. For the functions that stand in for the run
// time's and the system's; tests use MemoryWatch.
#pragma once

#include <cstddef>

namespace tamur::test {

// Counts an allocation; false when it must fail.
bool MayAllocate(std::size_t bytes);

void NoteAllocated(std::size_t bytes);
void NoteFreed(std::size_t bytes);

}  // namespace tamur::test
