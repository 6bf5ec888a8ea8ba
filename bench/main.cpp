// tamur_bench [--quick] [--json=PATH] [--only=GROUP,...]
//
// Groups: import, memory, accessors, scaling, hostile, threads. Ends with 1 when a result is
// worse than it must be.
#include <malloc.h>

#include <cstdio>
#include <exception>
#include <limits>
#include <string>
#include <string_view>

#include "context.h"
#include "fresh_process.h"

namespace tamur::bench {
namespace {

struct Group {
    const char* name;
    void (*measure)(Context&);
};

constexpr Group kGroups[] = {
    {"import", MeasureImport},   {"memory", MeasureMemory},        {"accessors", MeasureAccessors},
    {"scaling", MeasureScaling}, {"hostile", MeasureHostileFiles}, {"threads", MeasureThreads},
};

struct Arguments {
    bool isQuick = false;
    std::string json;
    std::string only;
};

// False when one is unknown.
bool Parse(int count, char** arguments, Arguments& parsed)
{
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--quick") {
            parsed.isQuick = true;
        } else if (argument.starts_with("--json=")) {
            parsed.json = argument.substr(7);
        } else if (argument.starts_with("--only=")) {
            parsed.only = "," + std::string(argument.substr(7)) + ",";
        } else {
            std::fprintf(stderr, "usage: tamur_bench [--quick] [--json=PATH] [--only=GROUP,...]\n");
            return false;
        }
    }
    return true;
}

// Memory that was given back stays with the process, so that only the warm-up runs touch memory
// for the first time, whatever they are subjects of.
void KeepFreedMemory()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

int Run(const Arguments& arguments)
{
    KeepFreedMemory();
    const double start = ClockSeconds();
    ModelFiles files;
    Report report;
    report.AddFact("compiler", __VERSION__);
    report.AddFact("mode", arguments.isQuick ? "quick" : "full");
    Context context = {files, report, arguments.isQuick, arguments.isQuick ? 5 : 7};
    for (const Group& group : kGroups) {
        const std::string name = "," + std::string(group.name) + ",";
        if (!arguments.only.empty() && arguments.only.find(name) == std::string::npos) continue;
        std::fprintf(stderr, "%s\n", group.name);
        group.measure(context);
    }
    report.AddFact("seconds", std::to_string(ClockSeconds() - start));
    report.Print();
    if (!arguments.json.empty()) report.WriteJson(arguments.json);
    return report.IsGood() ? 0 : 1;
}

}  // namespace
}  // namespace tamur::bench

int main(int count, char** arguments)
{
    using namespace tamur::bench;
    try {
        if (count == 3 && std::string_view(arguments[1]) == kFreshProcessArgument) {
            MeasureInThisProcess(arguments[2]);
            return 0;
        }
        Arguments parsed;
        return Parse(count, arguments, parsed) ? Run(parsed) : 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tamur_bench: %s\n", error.what());
        return 2;
    }
}
