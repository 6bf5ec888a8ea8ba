// The DLL beside the straightforward implementation built the same way, under Wine or on Windows.
// usage: tamur_bench_windows FILE
#include <tamur/component.h>

#include <cstdio>
#include <filesystem>

#include "runner.h"
#include "straightforward.h"

int main(int count, char** arguments)
{
    using namespace tamur::bench;
    if (count != 2) {
        (void)std::fprintf(stderr, "usage: tamur_bench_windows FILE\n");
        return 2;
    }
    const std::filesystem::path file(arguments[1]);
    const tamur::Component component(TAMUR_COMPONENT_PATH);
    const tamur::String name(file.c_str());
    const auto import = [&] {
        tamur::Check(component.CreateReader()->Import(name.Get()), "Import");
    };
    const auto importStraightforwardly = [&] {
        straightforward::Model model;
        straightforward::Import(model, file);
    };
    const auto samples =
        MeasureInTurns({[&] { return Timed(import, ClockSeconds); },
                        [&] { return Timed(importStraightforwardly, ClockSeconds); }},
                       {.rounds = 7, .seconds = 0});
    std::printf("ours %.1f ms, straightforward %.1f ms, ratio %.2f\n", Median(samples[0]) * 1e3,
                Median(samples[1]) * 1e3, Median(Quotients(samples[1], samples[0])));
    return 0;
}
