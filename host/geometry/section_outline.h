// The outlines of bar sections, as they are drawn about the axis of a bar.
#pragma once

#include <tamur/component.h>

#include <cstdint>
#include <vector>

#include "host/geometry/frames.h"

namespace tamur::host {

// u is along y of the bar, v along z. The axis of the bar is at 0, 0 unless it has an offset.
struct SectionOutline {
    enum class Source : std::uint8_t {
        kNothing,  // there is nothing that could be drawn
        kPoints,   // of the file
        kCircle,   // the file's, as a polygon
        kStandIn,  // a rectangle with the area and inertias of a section without an outline
    };
    Source source = Source::kNothing;
    std::vector<PlanePoint> points;  // counter-clockwise as seen against x; none twice in a row
};

// A circle has so many corners.
inline constexpr int kCircleCorners = 24;

[[nodiscard]] SectionOutline OutlineOfSection(const TMRSectionGeometry& section);

// What is added to the points of an outline so that the place that `excentration` names, a
// TMRFilaireExcentration, is on the axis.
[[nodiscard]] PlanePoint OffsetOf(const SectionOutline& outline, int excentration);

}  // namespace tamur::host
