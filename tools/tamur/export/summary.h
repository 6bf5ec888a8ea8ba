// What an export could not say as the model does, for people.
#pragma once

#include <ostream>

#include "host/export/losses.h"

namespace tamur::tool {

// Nothing when nothing was lost.
void WriteSummary(const host::Losses& losses, host::Language language, std::ostream& out);

}  // namespace tamur::tool
