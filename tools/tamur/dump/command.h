// `tamur dump`: every record as JSON.
#pragma once

#include <string>

#include "../task.h"

namespace CLI {
class App;
}

namespace tamur::tool {

// Adds the command; when it is used, `task` does it, with the component at that path.
void AddDumpCommand(CLI::App& app, const std::string& component, Task& task);

}  // namespace tamur::tool
