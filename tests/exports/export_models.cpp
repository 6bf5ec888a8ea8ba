// Dumps and exports the models of a folder in one process: what `tamur dump` and `tamur export` say
// of 00001.txt is in 00001.json and, for each kind, 00001.KIND. Ends with 1 when one of them is
// neither written nor refused. usage: export_models FOLDER KIND...
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "tools/tamur/command_line.h"
#include "tools/tamur/exit_code.h"

namespace tamur::test {
namespace {

namespace fs = std::filesystem;

int Run(const std::vector<std::string>& arguments, std::ostream& out)
{
    std::istringstream nothing;
    return tool::RunCommandLine(arguments, {.in = nothing, .out = out, .errors = std::cerr});
}

bool Export(const fs::path& model, const std::vector<std::string>& kinds)
{
    const auto named = [&model](const std::string& ending) {
        return fs::path(model).replace_extension(ending).string();
    };
    std::ofstream dump(named(".json"), std::ios::binary);
    const int expected = Run({"dump", model.string()}, dump);
    if (expected == tool::exit_code::kRefused) fs::remove(named(".json"));
    bool isAsExpected = expected != tool::exit_code::kTrouble;
    for (const std::string& kind : kinds) {
        std::ofstream summary(named("." + kind + "-summary"), std::ios::binary);
        const int code = Run({"export", model.string(), "--to", kind, "--lang", "en", "-o",
                              named("." + kind + (kind == "saf" ? ".xlsx" : ""))},
                             summary);
        if (code != expected) std::cerr << model << ": " << kind << " ends with " << code << '\n';
        isAsExpected = isAsExpected && code == expected;
    }
    return isAsExpected;
}

}  // namespace
}  // namespace tamur::test

int main(int argumentCount, char** arguments)
{
    namespace fs = std::filesystem;
    if (argumentCount < 3) return 2;
    std::vector<fs::path> models;
    for (const auto& entry : fs::directory_iterator(arguments[1])) {
        if (entry.path().extension() == ".txt") models.push_back(entry.path());
    }
    std::sort(models.begin(), models.end());
    bool isAsExpected = true;
    for (const fs::path& model : models) {
        isAsExpected =
            tamur::test::Export(model, {arguments + 2, arguments + argumentCount}) && isAsExpected;
    }
    return isAsExpected ? 0 : 1;
}
