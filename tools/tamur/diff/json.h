// Differences as JSON: every change, with the published names of tables and fields.
#pragma once

#include <ostream>

#include "result.h"

namespace tamur::tool {

void WriteDiffJson(const DiffResult& result, std::ostream& out);

}  // namespace tamur::tool
