// Coordinates in single precision: relative to the middle of the model, so that a model far from
// the origin keeps its shape.
#pragma once

#include <array>
#include <cmath>

#include "host/structure/box_tree.h"
#include "host/structure/tolerances.h"

namespace tamur::host {

class Centring {
 public:
    // Coordinates that cannot be meant do not count.
    void Add(Point point)
    {
        if (IsSensible(point)) box_.Add(point);
    }

    // A point with whole coordinates, so that adding it again loses nothing; the origin when it is
    // in or near the model.
    [[nodiscard]] Point Centre() const
    {
        if (!(box_.low.x <= box_.high.x)) return {};
        const Point middle = (box_.low + box_.high) * 0.5;
        if (Length(middle) <= kNear * box_.Diagonal()) return {};
        return {std::round(middle.x), std::round(middle.y), std::round(middle.z)};
    }

    [[nodiscard]] static std::array<float, 3> Relative(Point point, Point centre)
    {
        const Point from = point - centre;
        return {static_cast<float>(from.x), static_cast<float>(from.y), static_cast<float>(from.z)};
    }

 private:
    static constexpr double kNear = 2;

    Box box_;
};

}  // namespace tamur::host
