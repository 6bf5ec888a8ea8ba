// Sums as JSON.
#pragma once

#include <string>
#include <vector>

#include "../json_text.h"
#include "host/sums/sums.h"

namespace tamur::tool {

// `sections` has the names of all sections, by the places that the sums have.
[[nodiscard]] Json JsonOf(const host::Sums& sums, const std::vector<std::string>& sections);

}  // namespace tamur::tool
