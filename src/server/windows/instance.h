#pragma once

#include <windows.h>

namespace tamur {

// The library itself, where its resources are.
HINSTANCE Instance();

}  // namespace tamur
