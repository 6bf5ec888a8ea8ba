// Importing, beside the straightforward way and the floor, and what it does to memory.
#include "component_subject.h"
#include "context.h"
#include "floor.h"
#include "fresh_process.h"
#include "generator.h"
#include "straightforward.h"

namespace tamur::bench {
namespace {

double TimeStraightforward(const std::filesystem::path& path)
{
    straightforward::Model model;
    return Timed([&] { straightforward::Import(model, path); });
}

double TimeFloor(const std::filesystem::path& path)
{
    return Timed([&] { (void)ReadWithFloor(path); });
}

void RequireSameCounts(const std::filesystem::path& path)
{
    const Counts component = CountsOf(*Imported(path));
    RequireSame(component, ReadWithFloor(path), "the floor");
    straightforward::Model model;
    straightforward::Import(model, path);
    RequireSame(component, straightforward::CountsOf(model), "the straightforward import");
}

void MeasureShortNumbers(Context& context)
{
    const ModelFile file({.elements = context.Large()});
    const std::filesystem::path& path = file.Path();
    RequireSameCounts(path);
    context.report.AddFact("elements", std::to_string(context.Large()));
    context.report.AddFact("bytes", std::to_string(std::filesystem::file_size(path)));
    const auto samples = context.Measure(
        {[&] { return TimeStraightforward(path); }, [&] { return TimeImport(path); },
         [&] { return TimeFloor(path); }, [&] { return Timed([&] { ReadBytes(path); }); }});
    const auto addThroughput = [&](const char* what, const Samples& seconds) {
        const Samples sizes(seconds.size(), file.Bytes() * 1e-6);
        context.report.Add({.what = what,
                            .samples = Quotients(sizes, seconds),
                            .unit = "MB/s",
                            .better = Better::kHigher});
    };
    context.report.Add({.what = "import: straightforward / ours",
                        .samples = Quotients(samples[0], samples[1]),
                        .must = 11,
                        .aim = 15,
                        .better = Better::kHigher});
    context.report.Add({"import: ours / floor", Quotients(samples[1], samples[2]), 0.85, 0.60});
    addThroughput("throughput of the import", samples[1]);
    addThroughput("throughput of the floor", samples[2]);
    addThroughput("throughput of the read itself", samples[3]);
}

void MeasureFullNumbers(Context& context)
{
    const ModelFile file({.elements = context.Large(), .numbers = NumberStyle::kFull});
    const std::filesystem::path& path = file.Path();
    RequireSameCounts(path);
    const auto samples =
        context.Measure({[&] { return TimeImport(path); }, [&] { return TimeFloor(path); }});
    context.report.Add(
        {"17 digits and exponents: ours / floor", Quotients(samples[0], samples[1]), 1.3, 1.0});
}

}  // namespace

void MeasureImport(Context& context)
{
    MeasureShortNumbers(context);
    MeasureFullNumbers(context);
}

void MeasureMemory(Context& context)
{
    const ModelFile file({.elements = context.Large()});
    const ModelFile small({.elements = context.Small()});
    const double fileBytes = file.Bytes();
    constexpr double kMebibyte = 1024 * 1024;
    Samples peaks, releases;
    const auto importFresh = [&] {
        const FreshImport import = ImportInFreshProcess(file.Path());
        peaks.push_back(import.peakBytes / fileBytes);
        releases.push_back(import.releaseSeconds / import.importSeconds);
        return import.importSeconds;
    };
    const auto samples =
        context.Measure({importFresh, [&] { return TimeImport(file.Path()); },
                         [&] { return TimeFloor(file.Path()); },
                         [&] { return ImportInFreshProcess(small.Path()).importSeconds; },
                         [&] { return TimeImport(small.Path()); }});
    context.report.Add({"peak memory after import / file", peaks, 1.3 + 16 * kMebibyte / fileBytes,
                        1.0 + 4 * kMebibyte / fileBytes});
    context.report.Add(
        {"import into memory never touched: ours / floor", Quotients(samples[0], samples[2])});
    context.report.Add({"first import of a process / one in memory touched before",
                        Quotients(samples[0], samples[1])});
    context.report.Add({"the same, a tenth of the size", Quotients(samples[3], samples[4])});
    context.report.Add({"releasing the reader / importing", releases, 0.15, 0.07});
}

}  // namespace tamur::bench
