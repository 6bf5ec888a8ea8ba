// Commands that take several files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "console.h"
#include "exit_code.h"

namespace tamur::tool {

// Does it with each file and returns the worst exit code. Trouble with one file is no reason to
// lose what is said of the others: why it was not read is written to the errors. Throws when the
// output cannot be written.
int ForEachFile(const std::vector<std::string>& files, const Console& console,
                const std::function<int(const std::string& file)>& doWith);

}  // namespace tamur::tool
