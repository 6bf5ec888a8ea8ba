// The header lines that the import looks for.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tamur {

// Where the product accents an "é" it is the byte 0x82 of code page 850; both spellings occur.
enum class SectionHeader {
    kVersion,
    kServicePack,
    kWorkSpace,
    kTolerance,
    kRigidity,
    kGroups,
    kMaterials,
    kMaterialsAccented,
    kGeometries,
    kGeometriesAccented,
    kReleases,
    kCases,
    kCaseParameters,
    kElements,
    kElementsAccented,
    kCount,
};

inline constexpr std::size_t kSectionHeaderCount = static_cast<std::size_t>(SectionHeader::kCount);

inline constexpr std::array<std::string_view, kSectionHeaderCount> kSectionHeaders = {
    "#Version",  "#SP",        "#Espace",        "#Tolerance",  "#Rigide",
    "#Groupes",  "#Materiaux", "#Mat\x82riaux",  "#Geometries", "#G\x82om\x82tries",
    "#Attaches", "#Cas",       "#TAB_PARAM_CAS", "#Elements",   "#El\x82ments",
};
static_assert(!kSectionHeaders.back().empty(), "a header has no text");

constexpr std::string_view TextOf(SectionHeader header)
{
    return kSectionHeaders[static_cast<std::size_t>(header)];
}

}  // namespace tamur
