// What the columns of every kind of line are called and hold: the one description of the format
// that findings about lines are made from.
#pragma once

#include <cstdint>
#include <span>

#include "host/kinds.h"
#include "host/language.h"

namespace tamur::host {

// As what a column is read.
enum class ColumnType : std::uint8_t { kInteger, kUnsigned, kUnsigned16, kReal, kWord, kCharacter };

// What the reading of a line, or of other lines, needs to know of a column.
enum class Role : std::uint8_t {
    kValue,
    kOptional,    // ordinary lines may end before it
    kPassedOver,  // the same, and the import does not read it
    kLowByte,     // only its low 8 bits are kept
    kIdentifier,
    kPointCount,
    kLabelCount,
    kListCount,
    kListCode,  // 'S' and others: what follows the pairs of an outline
    kCase,
    kMaterial,
    kSection,
    kRelease,
};

// How often a group of columns is read.
enum class Times : std::uint8_t {
    kOnce,
    kEachPoint,
    kEachLabel,
    kEachItem,      // of the list that was announced
    kEachItemOfS,   // for the outline code 'S'
    kRadius,        // once, for the outline codes 'C' and 'F'
    kUpToMarker,    // pairs of a case and its factor, up to the case 32767
    kUpToInfinity,  // pairs of words, up to one that is "inf"
};

struct Column {
    Name name;
    ColumnType type = ColumnType::kReal;
    Role role = Role::kValue;
    // The codes that are known; with 0 as the largest all are.
    std::int16_t smallestCode = 0;
    std::int16_t largestCode = 0;
};

struct ColumnGroup {
    std::span<const Column> columns;
    Times times = Times::kOnce;
    int repeated = 1;  // so often each time
};

struct Layout {
    bool isScanned;  // as columns; else as a stream of tokens
    std::span<const ColumnGroup> groups;
};

// The lines of a kind of record, from their first column on; those of elements and parameters from
// the second on, because the first ones say what they are. Empty for kNone.
[[nodiscard]] const Layout& LayoutOf(Kind kind);

// The columns by which the lines of #Elements and #TAB_PARAM_CAS begin, and the lines of settings.
inline constexpr Column kElementKind = {{"kind", "genre"}, ColumnType::kInteger};
inline constexpr Column kParameterCase = {{"load case", "cas"}, ColumnType::kInteger};
inline constexpr Column kParameterKind = {{"kind of parameters", "genre des paramètres"},
                                          ColumnType::kInteger};
inline constexpr Column kServicePack = {{"service pack", "service pack"}, ColumnType::kInteger};
inline constexpr Column kWorkSpace = {
    {"working space", "espace de travail"}, ColumnType::kInteger, Role::kValue, 0, 2};
inline constexpr Column kTolerance = {{"tolerance", "tolérance"}, ColumnType::kReal};
inline constexpr Column kRigidity = {{"rigidity", "rigidité"}, ColumnType::kInteger};

}  // namespace tamur::host
