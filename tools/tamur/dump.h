// `tamur dump`: everything that the component serves, as JSON.
#pragma once

#include <tamur/component.h>

#include <ostream>

namespace tamur::tool {

// One object with a member for every table, written record by record. Compact, a record is one
// line; pretty, every value is.
void WriteDump(ITAMURStructureReader& reader, bool isPretty, std::ostream& out);

}  // namespace tamur::tool
