// `tamur diff`: what changed from one file to another.
#pragma once

#include <ostream>
#include <string>

namespace CLI {
class App;
}

namespace tamur::tool {

struct DiffCommand {
    bool isAsked = false;
    std::string before;
    std::string after;
    std::string format = "text";
    std::string language;  // empty: the user's
    double tolerance = 0;
    bool showsAll = false;
};

// The command is filled by the parsing of the application's arguments.
void AddDiffCommand(CLI::App& app, DiffCommand& command);

// The exit code: 0 same, 1 different, 2 trouble, with a line in `errors`.
[[nodiscard]] int RunDiff(const std::string& component, const DiffCommand& command,
                          std::ostream& out, std::ostream& errors);

}  // namespace tamur::tool
