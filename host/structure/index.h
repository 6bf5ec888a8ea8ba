// A place in a list: of points, of bars, ...
#pragma once

#include <cstdint>

// First, for its Kind::kNone: GCC 12 takes an enumerator for one that hides what is already
// declared.
#include "host/kinds.h"

namespace tamur::host {

using Index = std::uint32_t;
inline constexpr Index kNone = ~Index{0};

}  // namespace tamur::host
