// A summary of a model for programs; docs/info.md describes it.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "summary.h"

namespace tamur::tool {

[[nodiscard]] nlohmann::ordered_json JsonOf(const ModelSummary& summary);

// The exception that is being handled, for that file.
[[nodiscard]] nlohmann::ordered_json JsonOfFailure(const std::string& file);

}  // namespace tamur::tool
