// The bodies of bars: one mesh for each section, which bars share, and one for each change of
// section.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "host/export/glb/meshes.h"
#include "host/geometry/solids.h"
#include "host/structure/structure.h"

struct ITAMURStructureReader;

namespace tamur::host {

class BarMeshes {
 public:
    // `firstMaterial` is how these meshes are coloured.
    BarMeshes(ITAMURStructureReader& reader, Meshes& meshes, int material);

    struct Body {
        std::uint32_t mesh;
        PlanePoint offset;    // of the body beside the axis
        bool isStandIn;       // for a section without an outline
        bool isEven = false;  // though its sections differ
    };
    // Nothing for a bar whose section cannot be drawn.
    [[nodiscard]] std::optional<Body> BodyOf(const Bar& bar, int excentration);

 private:
    std::uint32_t PrismOf(Index section);
    std::optional<std::uint32_t> TaperOf(const Bar& bar, int excentration);

    Meshes& meshes_;
    int material_;
    Triangulator triangulator_;
    std::vector<SectionOutline> outlines_;
    std::map<Index, std::uint32_t> prisms_;
    std::map<std::tuple<Index, Index, int>, std::uint32_t> tapers_;
};

}  // namespace tamur::host
