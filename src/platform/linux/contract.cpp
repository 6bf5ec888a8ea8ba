#include <cstdio>
#include <cstdlib>

#include "platform/platform.h"

void tamur::platform::FailContract(const char* what)
{
    (void)std::fprintf(stderr, "TAMURReader: broken contract: %s\n", what);
    std::abort();
}
