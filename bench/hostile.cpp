// Twice the size must not take more than twice the time, whatever the file holds.
#include "models/hostile_families.h"

#include <fstream>
#include <stdexcept>

#include "component_subject.h"
#include "context.h"
#include "temporary_path.h"

namespace tamur::bench {
namespace {

void WriteFile(const HostileFamily& family, int size, const std::filesystem::path& path)
{
    std::string text = "#Version\n14.1E\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n1\n";
    family.write(text, size);
    if (!(std::ofstream(path, std::ios::binary) << text << std::flush)) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

// Import and release together.
double TimeWhole(const std::filesystem::path& path)
{
    return Timed([&] { (void)Imported(path); });
}

}  // namespace

void MeasureHostileFiles(Context& context)
{
    const TemporaryPath onceFile, twiceFile;
    const std::filesystem::path &once = onceFile.Get(), &twice = twiceFile.Get();
    for (const HostileFamily& family : HostileFamilies()) {
        WriteFile(family, family.size, once);
        WriteFile(family, 2 * family.size, twice);
        const auto samples =
            context.Measure({[&] { return TimeWhole(once); }, [&] { return TimeWhole(twice); }});
        context.report.Add({std::string("twice: ") + family.name, Quotients(samples[1], samples[0]),
                            family.twiceTheSize});
        context.report.AddFact(std::string("milliseconds, ") + family.name,
                               std::to_string(Median(samples[0]) * 1e3));
    }
}

}  // namespace tamur::bench
