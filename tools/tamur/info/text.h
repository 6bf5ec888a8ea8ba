// A summary of a model for people, on about one screen.
#pragma once

#include <ostream>

#include "host/language.h"
#include "summary.h"

namespace tamur::tool {

void WriteInfo(const ModelSummary& summary, host::Language language, std::ostream& out);

}  // namespace tamur::tool
