// Polygons whose edges cross or lie on each other, as triangles: cut into bands between the heights
// of their corners and crossings, whatever they are like.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "host/structure/geometry.h"

namespace tamur::host {

struct Bands {
    std::vector<PlanePoint> points;
    std::vector<std::uint32_t> corners;  // three each
};

// What is in the first ring (an odd number of times around) and in none of the others. Takes the
// square of the number of edges; nothing when there would be very many triangles for each of them.
[[nodiscard]] std::optional<Bands> BandsOf(const std::vector<std::vector<PlanePoint>>& rings);

}  // namespace tamur::host
