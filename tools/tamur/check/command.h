// `tamur check`: what is wrong with a model file and the model in it.
#pragma once

#include "../task.h"

namespace CLI {
class App;
}

namespace tamur::tool {

// Adds the command; when it is used, `task` does it. Its exit codes: 0 nothing that is an error or
// a warning, 1 something, 2 a file could not be checked.
void AddCheckCommand(CLI::App& app, Task& task);

}  // namespace tamur::tool
