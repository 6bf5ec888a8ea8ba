// What became of the lines of a file, as a table for people.
#pragma once

#include <ostream>

#include "host/file/balance.h"

namespace tamur::tool {

void WriteBalance(const host::Balance& balance, host::Language language, std::ostream& out);

}  // namespace tamur::tool
