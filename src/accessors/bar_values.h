// What hosts see of a bar that its record does not hold as such.
#pragma once

#include <cmath>
#include <limits>

#include "TAMURReader.h"
#include "model/elements.h"
#include "model/geometry.h"

namespace tamur {

inline constexpr WideStringView kBarAxisPosition = OLESTR("CentreCentre");

// Empty when there is no remark.
[[nodiscard]] inline WideStringView BarRemarkText(BarRemarks remarks)
{
    if (remarks.missingSection && remarks.turnedSection) {
        return OLESTR("#Section doesn't exist.#Verify H section!!!");
    }
    if (remarks.missingSection) return OLESTR("#Section doesn't exist.");
    return remarks.turnedSection ? OLESTR("#Verify H section!!!") : WideStringView();
}

[[nodiscard]] inline double LengthOf(const Segment& line)
{
    const double x = line.end.x - line.start.x;
    const double y = line.end.y - line.start.y;
    const double z = line.end.z - line.start.z;
    return std::sqrt(x * x + y * y + z * z);
}

// Whole units, cut; the largest number when there are more.
[[nodiscard]] inline LONG WholeLength(double length)
{
    constexpr LONG kLargest = std::numeric_limits<LONG>::max();
    return length < kLargest ? static_cast<LONG>(length) : kLargest;
}

}  // namespace tamur
