// The tool's commands, options and exit codes.
#pragma once

#include <string>
#include <vector>

#include "console.h"

namespace tamur::tool {

// Does what the arguments (UTF-8, without the program's name) ask for and returns the exit code,
// one of exit_code.h. Throws nothing.
[[nodiscard]] int RunCommandLine(std::vector<std::string> arguments, const Console& console);

}  // namespace tamur::tool
