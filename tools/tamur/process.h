// What the tool needs to know of the process it runs in.
#pragma once

#include <string>
#include <vector>

#include "console.h"

namespace tamur::tool {

// The arguments after the program's name, in UTF-8.
[[nodiscard]] std::vector<std::string> Arguments(int argc, char** argv);

// Makes the standard streams take UTF-8 with plain line feeds and, where they are a terminal,
// colours.
void PrepareStreams();

// The standard streams.
[[nodiscard]] Console StandardConsole();

}  // namespace tamur::tool
