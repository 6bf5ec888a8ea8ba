#include "tool_run.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/model_text.h"

namespace tamur::test {
namespace {

std::string Quoted(const std::string& argument)
{
    std::string quoted = "'";
    for (const char c : argument) {
        if (c == '\'') {
            quoted += "'\\''";
        } else {
            quoted += c;
        }
    }
    return quoted + "'";
}

std::string ContentOf(const TemporaryFile& file)
{
    std::ostringstream content;
    content << std::ifstream(file.Path(), std::ios::binary).rdbuf();
    return content.str();
}

}  // namespace

ToolRun RunTool(const std::vector<std::string>& arguments, const std::string& before,
                const std::string& output)
{
    const TemporaryFile kept(""), errors("");
    std::string command = before + " " + Quoted(TAMUR_TOOL);
    for (const std::string& argument : arguments) command += " " + Quoted(argument);
    command += " >" + Quoted(output.empty() ? kept.Path().string() : output);
    command += " 2>" + Quoted(errors.Path().string());
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(kept), ContentOf(errors)};
}

std::string Sample(const std::string& name)
{
    return TAMUR_SAMPLES "/" + name + ".txt";
}

nlohmann::json Dump(const std::string& file)
{
    const ToolRun run = RunTool({"dump", file});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_EQ(run.errors, "");
    return nlohmann::json::parse(run.output);
}

}  // namespace tamur::test
