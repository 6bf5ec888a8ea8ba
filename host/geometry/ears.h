// Polygons with openings as triangles, by the library that cuts off their ears.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/structure/geometry.h"

namespace tamur::host {

// Keeps its memory from one polygon to the next.
class EarCutter {
 public:
    EarCutter();
    ~EarCutter();
    EarCutter(const EarCutter&) = delete;
    EarCutter& operator=(const EarCutter&) = delete;

    // Three corners for each triangle: places in all rings, one after the other. The first ring is
    // the outline, the others are openings.
    const std::vector<std::uint32_t>& Cut(const std::vector<std::vector<PlanePoint>>& rings);

 private:
    struct Library;
    std::unique_ptr<Library> library_;
};

}  // namespace tamur::host
