// `tamur export`: a model in a form that other programs read.
#pragma once

#include "../task.h"

namespace CLI {
class App;
}

namespace tamur::tool {

void AddExportCommand(CLI::App& app, Task& task);

}  // namespace tamur::tool
