// What a VTK file is made of: points, cells on them, and values of both.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "host/structure/structure.h"

namespace tamur::host {

struct VtkPart;
using VtkSink = std::function<void(std::span<const std::byte>)>;

// Named values of each cell, or of each point that was added with it. They are taken from the
// elements when they are written: together they would be as large as the model.
struct VtkArray {
    std::string_view name;
    const char* type;
    std::size_t valueSize;
    std::size_t components;
    std::function<void(const VtkPart&, const VtkSink&)> write;
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
    std::vector<Index> elements;         // of each cell: what arrays ask for
    std::vector<std::uint32_t> corners;  // of one cell after the other
    std::vector<VtkArray> cellArrays;
    std::size_t firstOwnPoint = 0;      // where the points are that were added for these cells,
    std::vector<VtkArray> pointArrays;  // one each, when it has such arrays

    void Add(Index element, VtkCell cell, std::initializer_list<std::uint32_t> at)
    {
        cells.push_back(cell);
        elements.push_back(element);
        corners.insert(corners.end(), at);
    }
};

template <class Value>
constexpr const char* kVtkType = nullptr;
template <>
inline constexpr const char* kVtkType<std::uint8_t> = "UInt8";
template <>
inline constexpr const char* kVtkType<std::int32_t> = "Int32";
template <>
inline constexpr const char* kVtkType<std::uint32_t> = "UInt32";
template <>
inline constexpr const char* kVtkType<double> = "Float64";

template <class Result>
struct VtkValue {
    using Type = Result;
    static constexpr std::size_t kComponents = 1;
};
template <class Value, std::size_t kCount>
struct VtkValue<std::array<Value, kCount>> {
    using Type = Value;
    static constexpr std::size_t kComponents = kCount;
};

// get(index) is the value of an element, or an array of them.
template <class Get>
VtkArray MakeArray(std::string_view name, Get get)
{
    using Result = std::decay_t<decltype(get(Index{}))>;
    using Value = typename VtkValue<Result>::Type;
    return {name, kVtkType<Value>, sizeof(Value), VtkValue<Result>::kComponents,
            [get](const VtkPart& part, const VtkSink& sink) {
                std::array<Result, 1024> some;
                std::size_t count = 0;
                for (const Index element : part.elements) {
                    some[count++] = get(element);
                    if (count < some.size()) continue;
                    sink(std::as_bytes(std::span(some)));
                    count = 0;
                }
                sink(std::as_bytes(std::span(some).first(count)));
            }};
}

}  // namespace tamur::host
