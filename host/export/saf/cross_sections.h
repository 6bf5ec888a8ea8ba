// Bar sections. In the format each has its material, and bars that change have two.
#pragma once

#include <tamur/ranges.h>

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/export/saf/model.h"
#include "host/geometry/section_outline.h"

namespace tamur::host::saf {

// How far the outline of a section reaches along y and z; 0 when it has none.
struct Box {
    double width = 0, height = 0;
};
[[nodiscard]] Box BoxOf(const TMRSectionGeometry& section);

class CrossSections {
 public:
    explicit CrossSections(Model& model);

    // Writes it when it was not yet, and gives its name.
    const std::string& NameOf(Index section, Index material);
    // The name of what is between two sections; nothing when the format cannot say it.
    std::optional<std::string> NameOfVarying(Index start, Index end, Index material);

 private:
    struct Shape {
        enum class Type { kNamed, kGeneral, kRectangle, kCircle } type = Type::kNamed;
        std::string parameters;   // or the contour
        std::size_t corners = 0;  // of the contour
    };
    const Shape& ShapeOf(Index section);
    Shape MakeShape(const TMRSectionGeometry& section);

    Model& model_;
    Range<TMRSectionGeometry> records_;
    std::map<Index, Shape> shapes_;
    std::map<std::pair<Index, Index>, std::string> names_;
    std::map<std::array<Index, 3>, std::string> varying_;
    Names taken_, takenByVarying_;
};

}  // namespace tamur::host::saf
