#include "server/windows/instance.h"

// The library's resources are the tests' own here.
HINSTANCE tamur::Instance()
{
    return GetModuleHandleW(nullptr);
}
