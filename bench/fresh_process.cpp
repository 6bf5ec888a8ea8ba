#include "fresh_process.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

#include "component_subject.h"
#include "export_subject.h"
#include "runner.h"

namespace tamur::bench {
namespace {

// A figure of /proc/self/status, in bytes.
double StatusBytes(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    double kibibytes = 0;
    for (std::string word; status >> word;) {
        if (word == name && status >> kibibytes) return kibibytes * 1024;
    }
    throw std::runtime_error("no figure for the memory of the process");
}

}  // namespace

FreshImport ImportInFreshProcess(const std::filesystem::path& path, const std::string& exportTarget)
{
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    std::string command = "'" + program + "' " + kFreshProcessOption + " '" + path.string() + "'";
    if (!exportTarget.empty()) command += std::string(" ") + kThenExportOption + " " + exportTarget;
    std::fflush(nullptr);
    std::FILE* const answer = popen(command.c_str(), "r");
    if (answer == nullptr) throw std::runtime_error("no process for an import of its own");
    FreshImport result;
    const bool isAnswer = std::fscanf(answer, "%lf %lf %lf", &result.importSeconds,
                                      &result.releaseSeconds, &result.peakBytes) == 3;
    if (pclose(answer) != 0 || !isAnswer) {
        throw std::runtime_error("the import in a process of its own failed");
    }
    return result;
}

void MeasureInThisProcess(const std::filesystem::path& path, const std::string& exportTarget)
{
    TheComponent();
    const double before = StatusBytes("VmRSS:");
    ComPtr<ITAMURStructureReader> reader;
    const double import = Timed([&] { reader = Imported(path); });
    if (!exportTarget.empty()) Export(*reader, exportTarget);
    const double peak = StatusBytes("VmHWM:") - before;
    const double release = Timed([&] { reader = ComPtr<ITAMURStructureReader>(); });
    std::printf("%.9f %.9f %.0f\n", import, release, peak);
}

}  // namespace tamur::bench
