// What the functions that stand in for the run time's and the system's have to know of the
// platform.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tamur::test {

// Without allocating anything, which a thread_local may do where it is emulated.
using ThreadId = std::uint64_t;
ThreadId ThisThread();

std::size_t SizeOfBlock(void* block);

// Where throwing takes memory, what is freed can be allocated again, as in a process that has none
// left. Elsewhere nothing can.
extern const bool kFreedCanBeHadAgain;

// Whether making a string or a block of task memory ends in a malloc, which is watched already.
extern const bool kTaskMemoryIsMalloc;

}  // namespace tamur::test
