// Importing, beside the straightforward way and the floor.
#include "component_subject.h"
#include "context.h"
#include "floor.h"
#include "fresh_process.h"
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

double TimeRead(const std::filesystem::path& path)
{
    return Timed([&] { ReadBytes(path); });
}

void RequireSameCounts(const std::filesystem::path& path)
{
    const Counts component = CountsOf(*Imported(path));
    RequireSame(component, ReadWithFloor(path), "floor");
    straightforward::Model model;
    straightforward::Import(model, path);
    RequireSame(component, straightforward::CountsOf(model), "straightforward");
}

Row Throughput(std::string what, const Samples& samples, const ModelFileInfo& file)
{
    return {.what = std::move(what),
            .measured = static_cast<double>(file.bytes) * 1e-6 / samples.Median(),
            .unit = "MB/s",
            .better = Better::kHigher,
            .spread = samples.Spread()};
}

void MeasureShortNumbers(Context& context)
{
    const ModelFileInfo file = context.files.Get({.elements = context.Large()});
    RequireSameCounts(file.path);
    context.report.AddFact("elements", std::to_string(context.Large()));
    context.report.AddFact("bytes", std::to_string(file.bytes));
    const auto samples =
        MeasureInterleaved({{"straightforward", [&] { return TimeStraightforward(file.path); }},
                            {"component", [&] { return TimeImport(file.path); }},
                            {"floor", [&] { return TimeFloor(file.path); }},
                            {"read", [&] { return TimeRead(file.path); }}},
                           context.rounds);
    Row row = Ratio("import: straightforward / ours", samples[0], samples[1]);
    row.better = Better::kHigher;
    row.must = 11;
    row.aim = 15;
    context.report.Add(row);
    row = Ratio("import: ours / floor", samples[1], samples[2]);
    row.must = 0.85;
    row.aim = 0.60;
    context.report.Add(row);
    context.report.Add(Throughput("throughput of the import", samples[1], file));
    context.report.Add(Throughput("throughput of the floor", samples[2], file));
    context.report.Add(Throughput("throughput of the read itself", samples[3], file));
}

void MeasureFullNumbers(Context& context)
{
    const ModelOptions options = {.elements = context.Large(), .numbers = NumberStyle::kFull};
    const ModelFileInfo file = context.files.Get(options);
    RequireSameCounts(file.path);
    const auto samples = MeasureInterleaved({{"component", [&] { return TimeImport(file.path); }},
                                             {"floor", [&] { return TimeFloor(file.path); }}},
                                            context.rounds);
    Row row = Ratio("17 digits and exponents: ours / floor", samples[0], samples[1]);
    row.must = 1.3;
    row.aim = 1.0;
    context.report.Add(row);
    context.files.Drop(options);
}

}  // namespace

void MeasureImport(Context& context)
{
    MeasureShortNumbers(context);
    MeasureFullNumbers(context);
}

void MeasureMemory(Context& context)
{
    const ModelFileInfo file = context.files.Get({.elements = context.Large()});
    const double fileBytes = static_cast<double>(file.bytes);
    constexpr double kMebibyte = 1024 * 1024;
    Samples peaks, imports, releases, floors;
    for (int i = 0; i < context.rounds; ++i) {
        const FreshImport import = ImportInFreshProcess(file.path);
        peaks.Add(import.peakBytes / fileBytes);
        imports.Add(import.importSeconds);
        releases.Add(import.releaseSeconds);
        floors.Add(TimeFloor(file.path));
    }
    context.report.Add({.what = "peak memory after import / file",
                        .measured = peaks.Median(),
                        .must = 1.3 + 16 * kMebibyte / fileBytes,
                        .aim = 1.0 + 4 * kMebibyte / fileBytes,
                        .spread = peaks.Spread()});
    context.report.Add(Ratio("import into memory never touched: ours / floor", imports, floors));
    Row row = Ratio("releasing the reader / importing", releases, imports);
    row.must = 0.15;
    row.aim = 0.07;
    context.report.Add(row);
}

}  // namespace tamur::bench
