// Sums as JSON.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "host/sums/sums.h"

namespace tamur::tool {

// `sections` has the names of all sections, by the places that the sums have.
[[nodiscard]] nlohmann::ordered_json JsonOf(const host::Sums& sums,
                                            const std::vector<std::string>& sections);

}  // namespace tamur::tool
