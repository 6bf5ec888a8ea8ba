// What a VTK file is made of: points, cells on them, and values of both.
#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "host/structure/geometry.h"

namespace tamur::host {

// Named values, `components` of them for each point or cell.
struct VtkArray {
    using Values = std::variant<std::vector<std::uint8_t>, std::vector<std::int32_t>,
                                std::vector<std::uint32_t>, std::vector<double>>;
    std::string_view name;
    std::size_t components;
    Values values;
};

enum class VtkCell : std::uint8_t { kVertex = 1, kLine = 3, kTriangle = 5 };

// A vertex has one corner, a line two, a triangle three.
[[nodiscard]] inline std::uint32_t CornersOf(VtkCell cell)
{
    return cell == VtkCell::kVertex ? 1 : cell == VtkCell::kLine ? 2 : 3;
}

// Elements that have the same arrays. Their corners are places in a list of points that parts may
// share.
struct VtkPart {
    std::string name;
    std::vector<VtkCell> cells;
    std::vector<std::uint32_t> corners;  // of one cell after the other
    std::deque<VtkArray> cellArrays;     // whose values others hold references to
    std::size_t firstOwnPoint = 0;       // the points that were added with this part begin here
    std::deque<VtkArray> pointArrays;    // of these
};

template <class Value>
std::vector<Value>& AddArray(std::deque<VtkArray>& arrays, std::string_view name,
                             std::size_t components = 1)
{
    arrays.push_back({name, components, std::vector<Value>()});
    return std::get<std::vector<Value>>(arrays.back().values);
}

}  // namespace tamur::host
