#include "host/geometry/ears.h"

// The compiler does not see that the library's lists are never empty where it looks into them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnull-dereference"
#include <mapbox/earcut.hpp>

namespace mapbox::util {

template <>
struct nth<0, tamur::host::PlanePoint> {
    static double get(const tamur::host::PlanePoint& point) { return point.u; }
};
template <>
struct nth<1, tamur::host::PlanePoint> {
    static double get(const tamur::host::PlanePoint& point) { return point.v; }
};

}  // namespace mapbox::util

namespace tamur::host {

struct EarCutter::Library {
    mapbox::detail::Earcut<std::uint32_t> cutter;
};

EarCutter::EarCutter() : library_(std::make_unique<Library>()) {}
EarCutter::~EarCutter() = default;

const std::vector<std::uint32_t>& EarCutter::Cut(const std::vector<std::vector<PlanePoint>>& rings)
{
    library_->cutter(rings);
    return library_->cutter.indices;
}
#pragma GCC diagnostic pop

}  // namespace tamur::host
