// The polygons of a structure as triangles, surfaces without their openings.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "host/geometry/triangles.h"
#include "host/structure/structure.h"

namespace tamur::host {

class SurfaceCutter {
 public:
    // The structure must know the surfaces of its openings.
    explicit SurfaceCutter(const Structure& structure);

    struct Cut {
        Frame frame;
        const Triangles& triangles;  // until the next polygon is cut
        // Of their first points the places in Structure::points; the others are new.
        std::span<const Index> places;
    };
    // Nothing for what has no area. It must be usable.
    [[nodiscard]] std::optional<Cut> Surface(Index surface);
    [[nodiscard]] std::optional<Cut> Polygon(const Element& polygon);

 private:
    std::optional<Cut> CutOut(const Element& polygon, std::span<const Index> openings);

    const Structure& structure_;
    Lists<Index> openingsOf_;  // each surface
    Triangulator triangulator_;
    std::vector<Point> outline_;
    std::vector<std::vector<Point>> holes_;
    std::vector<Index> places_;
};

}  // namespace tamur::host
