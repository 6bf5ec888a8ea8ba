// Runs of the command-line tool.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace tamur::test {

struct ToolRun {
    int exitCode;
    std::string output;
    std::string errors;
};

// Runs `tamur` with those arguments. `before` is what a shell has in front of it, variables or a
// command with a pipe; `output` is where it writes instead of into the result.
ToolRun RunTool(const std::vector<std::string>& arguments, const std::string& before = "",
                const std::string& output = "");

// The path of a sample, by its name without extension.
std::string Sample(const std::string& name);

// The dump of that file; the test fails when there is none.
nlohmann::json Dump(const std::string& file);

}  // namespace tamur::test
