// The DLL beside the straightforward implementation built the same way, under Wine or on Windows.
// usage: tamur_bench_windows FILE
#include <tamur/component.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "straightforward.h"

namespace {

constexpr int kRounds = 7;

template <class Work>
double Seconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        (void)std::fprintf(stderr, "usage: tamur_bench_windows FILE\n");
        return 2;
    }
    const std::filesystem::path file(arguments[1]);
    const tamur::Component component(TAMUR_COMPONENT_PATH);
    const tamur::String name(file.c_str());
    std::vector<double> ours, straightforward;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(
            Seconds([&] { tamur::Check(component.CreateReader()->Import(name.Get()), "Import"); }));
        straightforward.push_back(Seconds([&] {
            tamur::bench::straightforward::Model model;
            tamur::bench::straightforward::Import(model, file);
        }));
    }
    std::printf("medians of %d: ours %.1f ms, straightforward %.1f ms, ratio %.2f\n", kRounds,
                Median(ours) * 1e3, Median(straightforward) * 1e3,
                Median(straightforward) / Median(ours));
    return 0;
}
