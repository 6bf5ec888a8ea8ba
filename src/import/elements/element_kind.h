// The kinds of elements, by the number that begins their lines.
#pragma once

#include <cstdint>

namespace tamur {

enum class ElementKind : std::int32_t {
    kNode = 1,
    kBar = 2,
    kSurface = 3,
    kPointSupport = 4,
    kPointLoad = 5,
    kLineLoad = 6,
    kSurfaceLoad = 7,
    kSelfWeight = 8,
    kMass = 9,
    kLineSupport = 10,
    kSurfaceSupport = 11,
    kDisplacement = 12,
    kThermalLoad = 13,
    // 14, 18 and 19 give no record.
    kSurfaceSection = 15,
    kInnerLine = 16,
    kOpening = 17,
    kWall = 20,
    kCable = 21,
    kConstructionLine = 22,
};

}  // namespace tamur
