// A summary of a model for programs; docs/info.md describes it.
#pragma once

#include <string>

#include "../json_text.h"
#include "summary.h"

namespace tamur::tool {

[[nodiscard]] Json JsonOf(const ModelSummary& summary);

// The exception that is being handled, for that file.
[[nodiscard]] Json JsonOfFailure(const std::string& file);

}  // namespace tamur::tool
