// A place in a list: of points, of bars, ...
#pragma once

#include <cstdint>

namespace tamur::host {

using Index = std::uint32_t;
inline constexpr Index kNone = ~Index{0};

}  // namespace tamur::host
