// What the size and the shape of a file, and other threads, change in the time of an import.
#include <functional>
#include <thread>
#include <vector>

#include "component_subject.h"
#include "context.h"
#include "floor.h"
#include "generator.h"

namespace tamur::bench {
namespace {

void ComparePerLine(Context& context, const std::string& what, const ModelFile& large,
                    const ModelOptions& options, double must, double aim)
{
    const ModelFile other(options);
    const auto samples = context.Measure(
        {[&] { return TimeImport(other.Path()); }, [&] { return TimeImport(large.Path()); }});
    const double lines = large.Lines() / other.Lines();
    context.report.Add({what, Scaled(Quotients(samples[0], samples[1]), lines), must, aim});
}

constexpr int kThreads = 8;
constexpr int kTimesEach = 4;  // so that a thread works mostly in memory it has touched before

// The work in eight threads, all at once or one after the other.
double TimeInThreads(const std::function<void()>& work)
{
    return Timed(
        [&] {
            std::vector<std::jthread> threads;
            for (int i = 0; i < kThreads; ++i) threads.emplace_back(work);
        },
        ClockSeconds);
}

double TimeInTurn(const std::function<void()>& work)
{
    return Timed(
        [&] {
            for (int i = 0; i < kThreads; ++i) std::jthread{work};
        },
        ClockSeconds);
}

}  // namespace

void MeasureScaling(Context& context)
{
    const std::uint64_t size = context.Large();
    const ModelFile large({.elements = size});
    const auto compare = [&](const std::string& what, const ModelOptions& options, double must,
                             double aim) {
        ComparePerLine(context, what, large, options, must, aim);
    };
    const auto compareSize = [&](std::uint64_t other, double must, double aim) {
        compare("time per line: " + std::to_string(other) + " / " + std::to_string(size),
                {.elements = other}, must, aim);
    };
    compareSize(context.Small(), 1.3, 1.05);
    compareSize(context.Huge(), 1.15, 1.03);
    compare("element section first / last", {.elements = size, .place = ElementsPlace::kFirst}, 1.1,
            1.05);
    compare("CR LF / LF", {.elements = size, .lineEnd = LineEnd::kCrLf}, 1.05, 1.02);
}

// Eight threads with a reader each, against one thread that does the same work. How far cores
// help depends on what else the machine does, so the floor, which shares nothing, is the measure.
void MeasureThreads(Context& context)
{
    const ModelFile file({.elements = context.Small()});
    const std::filesystem::path& path = file.Path();
    const auto import = [&path] {
        for (int i = 0; i < kTimesEach; ++i) (void)Imported(path);
    };
    const auto read = [&path] {
        for (int i = 0; i < kTimesEach; ++i) (void)ReadWithFloor(path);
    };
    const auto samples =
        context.Measure({[&] { return TimeInTurn(import); }, [&] { return TimeInThreads(import); },
                         [&] { return TimeInTurn(read); }, [&] { return TimeInThreads(read); }});
    const Samples ours = Quotients(samples[0], samples[1]);
    const Samples floors = Quotients(samples[2], samples[3]);
    context.report.Add({.what = "eight readers in eight threads: speed-up on the clock",
                        .samples = ours,
                        .better = Better::kHigher});
    context.report.Add({.what = "eight readers in eight threads: speed-up / the floor's",
                        .samples = Quotients(ours, floors),
                        .aim = 0.9,
                        .better = Better::kHigher});
}

}  // namespace tamur::bench
