// `tamur view`: a model as one page for a browser.
#pragma once

#include "../task.h"

namespace CLI {
class App;
}

namespace tamur::tool {

void AddViewCommand(CLI::App& app, Task& task);

}  // namespace tamur::tool
