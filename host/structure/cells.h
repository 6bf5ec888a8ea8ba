// Cells of space, by which points are found.
#pragma once

#include <cstdint>

namespace tamur::host {

// In cells; so that what is drawn on round coordinates is not on their sides.
inline constexpr double kCellShift = 0.37;

// The cell of a place that is in cells. As std::floor, which is a call where the processor may be
// an old one.
inline std::int64_t CellOf(double place)
{
    const auto cell = static_cast<std::int64_t>(place);
    return cell - (place < static_cast<double>(cell) ? 1 : 0);
}

}  // namespace tamur::host
