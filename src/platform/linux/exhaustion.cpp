#include <new>

#include "platform/platform.h"

namespace tamur::platform {

// The run time has kept back what it needs.
bool PrepareForBadAlloc() noexcept
{
    return true;
}

void ThrowBadAlloc()
{
    throw std::bad_alloc();
}

}  // namespace tamur::platform
