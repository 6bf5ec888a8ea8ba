// `tamur info`: what models hold, on a screen each.
#pragma once

#include <string>

#include "../task.h"

namespace CLI {
class App;
}

namespace tamur::tool {

// Adds the command; when it is used, `task` does it, with the component at that path. Its exit
// codes: 0 fine, 1 a file was not imported, 2 trouble.
void AddInfoCommand(CLI::App& app, const std::string& component, Task& task);

}  // namespace tamur::tool
