// What the size and the shape of a file, and other threads, change in the time of an import.
#include <functional>
#include <thread>
#include <vector>

#include "component_subject.h"
#include "context.h"
#include "floor.h"

namespace tamur::bench {
namespace {

// Nanoseconds a line, over as many imports as make up the lines of the large file.
double TimePerLine(const ModelFileInfo& file, int imports)
{
    double seconds = 0;
    for (int i = 0; i < imports; ++i) seconds += TimeImport(file.path);
    return seconds * 1e9 / (static_cast<double>(file.lines) * imports);
}

void CompareWithLarge(Context& context, const std::string& what, const ModelOptions& other,
                      int imports, double must, double aim)
{
    const ModelFileInfo large = context.files.Get({.elements = context.Large()});
    const ModelFileInfo file = context.files.Get(other);
    const auto samples = MeasureInterleaved({{"large", [&] { return TimePerLine(large, 1); }},
                                             {"other", [&] { return TimePerLine(file, imports); }}},
                                            context.rounds);
    Row row = Ratio(what, samples[1], samples[0]);
    row.must = must;
    row.aim = aim;
    context.report.Add(row);
    context.files.Drop(other);
}

}  // namespace

void MeasureScaling(Context& context)
{
    const std::uint64_t large = context.Large();
    const std::string size = std::to_string(large);
    CompareWithLarge(context, "time per line: " + std::to_string(context.Small()) + " / " + size,
                     {.elements = context.Small()}, 10, 1.3, 1.05);
    CompareWithLarge(context, "time per line: " + std::to_string(context.Huge()) + " / " + size,
                     {.elements = context.Huge()}, 1, 1.15, 1.03);
    CompareWithLarge(context, "element section first / last",
                     {.elements = large, .place = ElementsPlace::kFirst}, 1, 1.1, 1.05);
    CompareWithLarge(context, "CR LF / LF", {.elements = large, .lineEnd = LineEnd::kCrLf}, 1, 1.05,
                     1.02);
}

// Eight threads with a reader each, against one thread that does the same work. How far cores
// help depends on what else the machine does, so the floor, which shares nothing, is the measure.
void MeasureThreads(Context& context)
{
    constexpr unsigned kThreads = 8;
    constexpr int kTimesEach = 4;
    const ModelFileInfo file = context.files.Get({.elements = context.Small()});
    const auto import = [&file] {
        for (int i = 0; i < kTimesEach; ++i) (void)Imported(file.path);
    };
    const auto read = [&file] {
        for (int i = 0; i < kTimesEach; ++i) (void)ReadWithFloor(file.path);
    };
    const auto inThreads = [](const std::function<void()>& work) {
        const double start = ClockSeconds();
        std::vector<std::thread> threads;
        for (unsigned i = 0; i < kThreads; ++i) threads.emplace_back(work);
        for (std::thread& thread : threads) thread.join();
        return ClockSeconds() - start;
    };
    const auto inTurn = [](const std::function<void()>& work) {
        const double start = ClockSeconds();
        for (unsigned i = 0; i < kThreads; ++i) std::thread(work).join();
        return ClockSeconds() - start;
    };
    const auto samples =
        MeasureInterleaved({{"imports in turn", [&] { return inTurn(import); }},
                            {"imports in threads", [&] { return inThreads(import); }},
                            {"floor in turn", [&] { return inTurn(read); }},
                            {"floor in threads", [&] { return inThreads(read); }}},
                           context.rounds);
    Row speedUp =
        Ratio("eight readers in eight threads: speed-up on the clock", samples[0], samples[1]);
    speedUp.better = Better::kHigher;
    context.report.Add(speedUp);
    Row row =
        Ratio("eight readers in eight threads: speed-up / the floor's", samples[0], samples[1]);
    row.measured /= samples[2].Median() / samples[3].Median();
    row.better = Better::kHigher;
    row.aim = 0.9;
    context.report.Add(row);
}

}  // namespace tamur::bench
