// How near is the same place.
#pragma once

#include "host/structure/structure.h"

namespace tamur::host {

// Coordinates beyond it cannot be meant; within it no product of a few of them is infinite.
inline constexpr double kGreatestCoordinate = 1e9;

[[nodiscard]] inline bool IsSensible(Point point)
{
    // False for what is not a number.
    const auto isSensible = [](double value) { return std::abs(value) <= kGreatestCoordinate; };
    return isSensible(point.x) && isSensible(point.y) && isSensible(point.z);
}

// `written` is the file's tolerance. It is taken when it is no more than a hundredth of the
// extent, which would melt members, and more than coordinates are rounded by; otherwise a
// millionth of the extent is.
inline void SetTolerances(Structure& structure, double written, double extent)
{
    constexpr double kMost = 1e-2, kLeast = 1e-13, kOwn = 1e-6, kReach = 10;
    structure.extent = extent;
    structure.writtenTolerance = written;
    const bool isUsable = written <= kMost * extent && written >= kLeast * extent && written > 0;
    structure.tolerance = isUsable ? written : extent > 0 ? kOwn * extent : kOwn;
    structure.reach = kReach * structure.tolerance;
}

}  // namespace tamur::host
