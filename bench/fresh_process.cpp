#include "fresh_process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "component_subject.h"

namespace tamur::bench {
namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// A figure of /proc/self/status, in bytes.
double StatusBytes(const char* name)
{
    const File status(std::fopen("/proc/self/status", "r"), &std::fclose);
    char line[256];
    while (status != nullptr && std::fgets(line, sizeof line, status.get()) != nullptr) {
        long kibibytes = 0;
        const std::size_t length = std::strlen(name);
        if (std::strncmp(line, name, length) == 0 &&
            std::sscanf(line + length, ": %ld", &kibibytes) == 1) {
            return static_cast<double>(kibibytes) * 1024;
        }
    }
    throw std::runtime_error("no figure for the memory of the process");
}

[[noreturn]] void BecomeImporter(const std::filesystem::path& path, int output)
{
    dup2(output, STDOUT_FILENO);
    execl("/proc/self/exe", "tamur_bench", kFreshProcessArgument, path.c_str(),
          static_cast<char*>(nullptr));
    _exit(127);
}

}  // namespace

FreshImport ImportInFreshProcess(const std::filesystem::path& path)
{
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) BecomeImporter(path, ends[1]);
    close(ends[1]);
    const File answer(fdopen(ends[0], "r"), &std::fclose);
    FreshImport result;
    const bool isAnswer = std::fscanf(answer.get(), "%lf %lf %lf", &result.importSeconds,
                                      &result.releaseSeconds, &result.peakBytes) == 3;
    int status = 0;
    waitpid(child, &status, 0);
    if (!isAnswer || status != 0) {
        throw std::runtime_error("the import in a process of its own failed");
    }
    return result;
}

void MeasureInThisProcess(const std::filesystem::path& path)
{
    TheComponent();
    const double before = StatusBytes("VmRSS");
    ComPtr<ITAMURStructureReader> reader;
    const double import = Timed([&] { reader = Imported(path); });
    const double peak = StatusBytes("VmHWM") - before;
    const double release = Timed([&] { reader = ComPtr<ITAMURStructureReader>(); });
    std::printf("%.9f %.9f %.0f\n", import, release, peak);
}

}  // namespace tamur::bench
