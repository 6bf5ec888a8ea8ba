// A summary of a model for programs; docs/info.md describes it.
#pragma once

#include <nlohmann/json.hpp>

#include "summary.h"

namespace tamur::tool {

[[nodiscard]] nlohmann::ordered_json JsonOf(const ModelSummary& summary);

}  // namespace tamur::tool
