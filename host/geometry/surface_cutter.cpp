#include "host/geometry/surface_cutter.h"

namespace tamur::host {

SurfaceCutter::SurfaceCutter(const Structure& structure) : structure_(structure)
{
    auto& starts = openingsOf_.starts;
    starts.assign(structure.surfaces.size() + 2, 0);
    for (const host::Surface& opening : structure.openings) {
        if (opening.surface != kNone) ++starts[opening.surface + 2];
    }
    for (std::size_t i = 2; i < starts.size(); ++i) starts[i] += starts[i - 1];
    openingsOf_.values.resize(starts.back());
    for (Index i = 0; i < structure.openings.size(); ++i) {
        const Index surface = structure.openings[i].surface;
        if (surface != kNone) openingsOf_.values[starts[surface + 1]++] = i;
    }
    starts.pop_back();
}

std::optional<SurfaceCutter::Cut> SurfaceCutter::Surface(Index surface)
{
    return CutOut(structure_.surfaces[surface], openingsOf_[surface]);
}

std::optional<SurfaceCutter::Cut> SurfaceCutter::Polygon(const Element& polygon)
{
    return CutOut(polygon, {});
}

std::optional<SurfaceCutter::Cut> SurfaceCutter::CutOut(const Element& polygon,
                                                        std::span<const Index> openings)
{
    places_.clear();
    const auto read = [this](const Element& element, std::vector<Point>& outline) {
        GetOutline(structure_, element, outline);
        const auto corners = structure_.CornersOf(element);
        places_.insert(places_.end(), corners.begin(), corners.end());
    };
    read(polygon, outline_);
    const auto frame = FrameOfPolygon(outline_);
    if (!frame) return std::nullopt;
    if (holes_.size() < openings.size()) holes_.resize(openings.size());
    for (std::size_t i = 0; i < openings.size(); ++i) {
        read(structure_.openings[openings[i]], holes_[i]);
    }
    const Triangles& triangles =
        triangulator_.Cut(*frame, outline_, std::span(holes_).first(openings.size()));
    return Cut{*frame, triangles, places_};
}

}  // namespace tamur::host
