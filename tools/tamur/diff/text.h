// Differences as text for people: a line for each change, then how many there are of each kind.
#pragma once

#include <ostream>

#include "result.h"
#include "host/language.h"

namespace tamur::tool {

// Nothing when there is no difference. Shows the first changes of each kind, or all.
void WriteDiffText(const DiffResult& result, host::Language language, bool showsAll,
                   std::ostream& out);

}  // namespace tamur::tool
