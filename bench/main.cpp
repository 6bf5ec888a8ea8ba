// Measures the component; ends with 1 when a result is worse than it must be.
#include <CLI/CLI.hpp>
#include <malloc.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "context.h"
#include "fresh_process.h"

namespace tamur::bench {
namespace {

struct Group {
    std::string name;
    void (*measure)(Context&);
};

const Group kGroups[] = {
    {"import", MeasureImport},
    {"observer", MeasureObserver},
    {"memory", MeasureMemory},
    {"accessors", MeasureAccessors},
    {"scaling", MeasureScaling},
    {"hostile", MeasureHostileFiles},
    {"repeated", MeasureRepeatedImports},
    {"threads", MeasureThreads},
    {"check", MeasureCheck},
    {"exports", MeasureExports},
};

// Memory that was given back stays with the process, so that only the warm-up runs touch memory
// for the first time, whatever they are subjects of.
void KeepFreedMemory()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

// An empty `only` takes all groups.
void Measure(Context& context, const std::vector<std::string>& only)
{
    KeepFreedMemory();
    context.report.AddFact("compiler", __VERSION__);
    context.report.AddFact("mode", context.isQuick ? "quick" : "full");
    const double seconds = Timed(
        [&] {
            for (const Group& group : kGroups) {
                if (!only.empty() && std::ranges::count(only, group.name) == 0) continue;
                std::fprintf(stderr, "%s\n", group.name.c_str());
                group.measure(context);
            }
        },
        ClockSeconds);
    context.report.AddFact("seconds", std::to_string(seconds));
}

int Run(int count, char** arguments)
{
    Context context;
    std::string json, imported, exported;
    std::vector<std::string> only, names;
    for (const Group& group : kGroups) names.push_back(group.name);
    CLI::App app("Measures TAMUR Reader.", "tamur_bench");
    app.add_flag("--quick", context.isQuick, "smaller files and fewer rounds");
    app.add_option("--json", json, "writes the results to this file, too")->type_name("FILE");
    app.add_option("--only", only, "takes these groups")
        ->delimiter(',')
        ->check(CLI::IsMember(names));
    // An empty group hides it from the help: the program calls itself with it.
    app.add_option(kFreshProcessOption, imported)->group("");
    app.add_option(kThenExportOption, exported)->group("");
    CLI11_PARSE(app, count, arguments);
    if (!imported.empty()) {
        MeasureInThisProcess(imported, exported);
        return 0;
    }
    Measure(context, only);
    context.report.Print();
    if (!json.empty()) context.report.WriteJson(json);
    return context.report.IsGood() ? 0 : 1;
}

}  // namespace
}  // namespace tamur::bench

int main(int count, char** arguments)
{
    try {
        return tamur::bench::Run(count, arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tamur_bench: %s\n", error.what());
        return 2;
    }
}
