#include "host/export/glb/bar_meshes.h"

#include <tamur/ranges.h>

#include <tuple>

namespace tamur::host {
namespace {

// Many sections can be paired in very many ways: beyond these a bar has one section from end to
// end.
constexpr std::size_t kMostTapers = 10000;
constexpr std::size_t kMostCornersOfTaper = 64;

std::vector<PlanePoint> Moved(const std::vector<PlanePoint>& points, PlanePoint by)
{
    std::vector<PlanePoint> moved;
    for (const PlanePoint point : points) moved.push_back({point.u + by.u, point.v + by.v});
    return moved;
}

}  // namespace

BarMeshes::BarMeshes(ITAMURStructureReader& reader, Meshes& meshes, int material)
    : meshes_(meshes), material_(material)
{
    for (const auto& section : Records<TMRSectionGeometry>(reader)) {
        outlines_.push_back(OutlineOfSection(*section));
    }
}

std::optional<BarMeshes::Body> BarMeshes::BodyOf(const Bar& bar, int excentration)
{
    using Source = SectionOutline::Source;
    if (bar.startSection == kNone) return std::nullopt;
    const SectionOutline& outline = outlines_[bar.startSection];
    if (outline.source == Source::kNothing) return std::nullopt;
    Body body = {0, {}, outline.source == Source::kStandIn};
    if (bar.endSection != bar.startSection) {
        if (const auto taper = TaperOf(bar, excentration)) {
            body.mesh = *taper;
            return body;
        }
        body.isEven = true;
    }
    body.mesh = PrismOf(bar.startSection);
    body.offset = OffsetOf(outline, excentration);
    return body;
}

std::uint32_t BarMeshes::PrismOf(Index section)
{
    const auto known = prisms_.find(section);
    if (known != prisms_.end()) return known->second;
    const auto& points = outlines_[section].points;
    const Solid solid = SolidOfBar(points, points, triangulator_);
    const std::uint32_t mesh = meshes_.Add(solid.points, solid.corners, material_);
    prisms_.emplace(section, mesh);
    return mesh;
}

// Nothing when the outlines do not go together.
std::optional<std::uint32_t> BarMeshes::TaperOf(const Bar& bar, int excentration)
{
    if (bar.endSection == kNone) return std::nullopt;
    const SectionOutline &start = outlines_[bar.startSection], &end = outlines_[bar.endSection];
    if (start.points.size() != end.points.size()) return std::nullopt;
    const auto key = std::tuple(bar.startSection, bar.endSection, excentration);
    const auto known = tapers_.find(key);
    if (known != tapers_.end()) return known->second;
    if (start.points.size() > kMostCornersOfTaper || tapers_.size() >= kMostTapers) {
        return std::nullopt;
    }
    const Solid solid = SolidOfBar(Moved(start.points, OffsetOf(start, excentration)),
                                   Moved(end.points, OffsetOf(end, excentration)), triangulator_);
    const std::uint32_t mesh = meshes_.Add(solid.points, solid.corners, material_);
    tapers_.emplace(key, mesh);
    return mesh;
}

}  // namespace tamur::host
