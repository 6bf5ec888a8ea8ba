// `tamur diff`: what changed from one file to another.
#pragma once

#include <string>

#include "../task.h"

namespace CLI {
class App;
}

namespace tamur::tool {

// Adds the command; when it is used, `task` does it with the component at that path, which must
// outlive the parsing only. Its exit codes: 0 same, 1 different, 2 trouble.
void AddDiffCommand(CLI::App& app, const std::string& component, Task& task);

}  // namespace tamur::tool
