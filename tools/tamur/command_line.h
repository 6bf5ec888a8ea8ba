// The tool's commands, options and exit codes.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tamur::tool {

// Does what the arguments (UTF-8, without the program's name) ask for and returns the exit code:
// 0 fine, 1 the file was not imported, 2 anything else. Throws nothing.
[[nodiscard]] int RunCommandLine(std::vector<std::string> arguments, std::ostream& out,
                                 std::ostream& errors);

}  // namespace tamur::tool
