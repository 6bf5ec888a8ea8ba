// Local axes: of bars, surfaces, supports and loads. Where the format says nothing, they are
// assumed as docs/conventions.md says.
#pragma once

#include <tamur/component.h>

#include <optional>
#include <span>

#include "host/structure/structure.h"

namespace tamur::host {

// Three axes of length 1, at right angles, right-handed.
struct Frame {
    Point x = {1, 0, 0}, y = {0, 1, 0}, z = {0, 0, 1};

    // A direction in this frame as one in the model's.
    [[nodiscard]] Point ToGlobal(Point local) const
    {
        return x * local.x + y * local.y + z * local.z;
    }
    [[nodiscard]] Point ToLocal(Point global) const
    {
        return {Dot(x, global), Dot(y, global), Dot(z, global)};
    }
};

// y turned towards z. Quarter turns are exact.
[[nodiscard]] Frame TurnedAboutX(const Frame& frame, double degrees);
// x turned towards y.
[[nodiscard]] Frame TurnedAboutZ(const Frame& frame, double degrees);

// Sine of the angle to the vertical below which a bar counts as vertical.
inline constexpr double kVertical = 1e-3;

// The axes of a bar before it is turned: x from its start to its end, z upwards or towards
// `orientation`, y to the left. Nothing when it has no length or a coordinate that cannot be meant.
[[nodiscard]] std::optional<Frame> FrameOfAxis(const Segment& axis,
                                               const Point* orientation = nullptr);

// The axes in which the outline of its section is drawn. `orientation` is where its orientation
// node is, when it has one.
[[nodiscard]] std::optional<Frame> FrameOfBar(const TMRFilaire& bar,
                                              const Point* orientation = nullptr);

// z by the order of the corners, x along the first side that has a length. Nothing for a polygon
// without an area or with a coordinate that cannot be meant.
[[nodiscard]] std::optional<Frame> FrameOfPolygon(std::span<const Point> corners);

// Along the model's axes, turned about z; with an orientation node as a bar that leads to it.
[[nodiscard]] Frame FrameOfSupport(const TMRAppuiPonctuel& support,
                                   const Point* orientation = nullptr);

// In which frame the forces of a load are, by its `Repere`, an enumTMRRepereForce. Local is that of
// what is loaded, or where this is not known that of the load's own line or polygon.
[[nodiscard]] Frame FrameOfLoad(int repere, const std::optional<Frame>& local);

}  // namespace tamur::host
