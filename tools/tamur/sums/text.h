// Sums of loads, masses, lengths and areas for people, with their units and what they rest on.
#pragma once

#include <cstddef>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include "host/language.h"
#include "host/sums/sums.h"

namespace tamur::tool {

inline constexpr std::size_t kAllSums = std::numeric_limits<std::size_t>::max();

// `sections` has the names of all sections, by the places that the sums have. Of each list at most
// so many: the first cases, the greatest lengths and areas; and how many more there are.
void WriteSums(const host::Sums& sums, const std::vector<std::string>& sections,
               host::Language language, std::size_t most, std::ostream& out);

}  // namespace tamur::tool
