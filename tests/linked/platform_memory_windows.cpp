#include "linked/platform_memory.h"

#include <malloc.h>
#include <windows.h>

namespace tamur::test {

ThreadId ThisThread()
{
    return GetCurrentThreadId();
}

std::size_t SizeOfBlock(void* block)
{
    return _msize(block);
}

const bool kFreedCanBeHadAgain = true;
const bool kTaskMemoryIsMalloc = false;

}  // namespace tamur::test
