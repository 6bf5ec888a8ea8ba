#include <cstdio>

#include "platform/platform.h"

void tamur::platform::FailContract(const char* what)
{
    (void)std::fprintf(stderr, "TAMURReader: broken contract: %s\n", what);
    (void)std::fflush(stderr);
    // The code with which the C run time ends a process after an invalid parameter.
    constexpr UINT kInvalidCRuntimeParameter = 0xC0000417;
    TerminateProcess(GetCurrentProcess(), kInvalidCRuntimeParameter);
    __builtin_trap();
}
