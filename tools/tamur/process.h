// What the tool needs to know of the process it runs in.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tamur::tool {

// The arguments after the program's name, in UTF-8.
[[nodiscard]] std::vector<std::string> Arguments(int argc, char** argv);

[[nodiscard]] std::filesystem::path ExecutableFolder();

// Makes the standard streams take UTF-8 with plain line feeds.
void PrepareStreams();

}  // namespace tamur::tool
