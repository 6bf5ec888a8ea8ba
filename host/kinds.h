// What a model has of: a name for each kind of record, in the words of engineers.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/language.h"

namespace tamur::host {

enum class Kind : std::uint8_t {
    kNone,
    kMaterial,
    kSection,
    kRelease,
    kGroup,
    kCase,
    kCombination,
    kModes,
    kSeismicCase,
    kEnvelope,
    kNode,
    kBar,
    kSurface,
    kPointSupport,
    kPointLoad,
    kLineLoad,
    kSurfaceLoad,
    kSelfWeight,
    kMass,
    kLineSupport,
    kSurfaceSupport,
    kDisplacement,
    kThermalLoad,
    kSurfaceSection,
    kInnerLine,
    kOpening,
    kWall,
    kCable,
    kConstructionLine,
};
inline constexpr int kKindCount = static_cast<int>(Kind::kConstructionLine) + 1;

// "bar", "barre". Empty for kNone.
[[nodiscard]] std::string_view NounOf(Kind kind, Language language);

// The name of its table in the contract, "Filaires". Empty for kNone and kModes, which have none.
[[nodiscard]] std::string_view TableNameOf(Kind kind);

// The kind of the records in the table of that name; kNone when there is none.
[[nodiscard]] Kind KindOfTable(std::string_view name);

// The number that begins the lines of an element; 0 for what is no element.
[[nodiscard]] int ElementNumberOf(Kind kind);

// The element with that number; kNone for numbers without records.
[[nodiscard]] Kind KindOfElement(int number);

}  // namespace tamur::host
