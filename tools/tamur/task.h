// What a command line asks for.
#pragma once

#include <functional>

#include "console.h"

namespace tamur::tool {

// Does it and returns the exit code. May throw.
using Task = std::function<int(const Console& console)>;

}  // namespace tamur::tool
