// The settings, and the records that elements refer to.
#pragma once

#include <cstdint>

#include "model/columns.h"
#include "model/list.h"
#include "model/text.h"

namespace tamur {

enum class WorkSpace { kPlane, kGrid, kSpace };

struct Settings {
    double tolerance = 0;
    WorkSpace workSpace = WorkSpace::kSpace;
    bool isRigid = true;  // in bending
};

struct MaterialConstants {
    double modulus = 0;
    double poisson = 0;
    double density = 0;
    double expansion = 0;
    double damping = 0;
};

struct Material {
    Text name;
    const MaterialConstants* constants = &kNoColumns<MaterialConstants>;
};

// The outline of a section.
struct Outline {
    List<double> coordinates;  // Stride() of each point
    double radius = 0;
    std::int32_t pointCount = 0;  // as the line announces it; below 0 there are no coordinates
    char code = 0;

    [[nodiscard]] std::int32_t Stride() const { return code == 'S' ? 3 : 2; }
};

struct Section {
    static constexpr std::int32_t kConstants = 11;

    Text name;
    List<double> constants;  // Sx Sy Sz Ix Iy Iz Vx V1y V1z V2y V2z
    const Outline* outline = &kNoColumns<Outline>;
    bool isHShape = false;  // the name was rewritten from an H form; hosts do not see it
};

struct Release {
    Text name;
    std::int32_t rotations = 0;  // hosts see the low 8 bits
    Text title;
    Text geometry;
    Text definition;
};

struct Group {
    Text title;
    std::int32_t number = 0;
    std::uint8_t elementKind = 0;
    std::uint8_t typeCode = 0;
    bool isDisplayed = false;
};

}  // namespace tamur
