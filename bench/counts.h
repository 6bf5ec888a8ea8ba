// How many records something read from a model file.
#pragma once

#include <TAMURReader.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tamur::bench {

// The elements by their kinds, from 1 to 22; after them the tables that bars refer to.
inline constexpr std::size_t kMaterials = 23, kSections = 24, kReleases = 25;
using Counts = std::array<std::int64_t, 26>;

[[nodiscard]] Counts CountsOf(ITAMURStructureReader& reader);

// Throws when a reference did not read what the component read: its times would mean nothing.
void RequireSame(const Counts& component, const Counts& reference, const std::string& name);

}  // namespace tamur::bench
