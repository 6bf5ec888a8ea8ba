// What reading into NumPy takes, in a process of Python: bench/python_reading.py.
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>

#include "context.h"

namespace tamur::bench {
namespace {

// The samples by their names.
std::map<std::string, Samples> Run(const std::string& command)
{
    std::fflush(nullptr);
    std::FILE* const answer = popen(command.c_str(), "r");
    if (answer == nullptr) throw std::runtime_error("no process for Python");
    std::map<std::string, Samples> samples;
    char name[32];
    double value = 0;
    while (std::fscanf(answer, "%31s %lf", name, &value) == 2) samples[name].push_back(value);
    if (pclose(answer) != 0) throw std::runtime_error("the measurement in Python failed");
    return samples;
}

}  // namespace

void MeasurePython(Context& context)
{
    const std::string effort = context.isQuick ? "5 1000" : "15 10000";
    auto samples = Run("PYTHONDONTWRITEBYTECODE=1 PYTHONPATH='" TAMUR_PYTHON_PATH
                       "' /usr/bin/python3 '" TAMUR_PYTHON_SCRIPT "' '" TAMUR_COMPONENT_PATH
                       "' '" TAMUR_SAMPLE "' " +
                       effort);
    const auto add = [&](const char* name, Row row) {
        row.samples = samples.at(name);
        context.report.Add(std::move(row));
    };
    add("read", {.what = "100000 bars: into NumPy / bare import", .samples = {}, .must = 2});
    add("threads", {.what = "small files into NumPy: a thread per core / one thread",
                    .samples = {},
                    .better = Better::kHigher});
    add("threads_to_hashing", {.what = "small files into NumPy: that speed-up / the one of hashing",
                               .samples = {},
                               .aim = 0.9,
                               .better = Better::kHigher});
    samples["file"] = Scaled(samples.at("file"), 1e6);
    add("file", {.what = "a file of 14 kB into NumPy", .samples = {}, .unit = "us"});
    add("memory",
        {.what = "memory of the process after that many / before", .samples = {}, .must = 1.02});
}

}  // namespace tamur::bench
