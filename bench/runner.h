// Measures subjects in turns, so that what disturbs the machine disturbs all of them.
#pragma once

#include <chrono>
#include <ctime>
#include <functional>
#include <vector>

namespace tamur::bench {

// One run, in seconds.
using Subject = std::function<double()>;

// Seconds a run, one value a round.
using Samples = std::vector<double>;

struct Effort {
    int rounds;
    double seconds;  // at least, of each subject in each round: it runs as often as that takes
};

// One run of each to touch memory and caches, then rounds A, B, C, A, B, C, ...; every other round
// backwards.
[[nodiscard]] std::vector<Samples> MeasureInTurns(const std::vector<Subject>& subjects,
                                                  Effort effort);

[[nodiscard]] double Median(Samples samples);

// Between the quartiles, relative to the median.
[[nodiscard]] double Spread(Samples samples);

// Round by round, so that what slows down a whole round cancels out.
[[nodiscard]] Samples Quotients(const Samples& above, const Samples& below);

[[nodiscard]] Samples Scaled(Samples samples, double factor);

// Time on the clock.
inline double ClockSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// Time of the processor (on Windows, on the clock): on a machine shared with others it varies less,
// and an import waits for nothing once its file is in memory.
inline double ProcessorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// What `work` takes.
template <class Work>
double Timed(Work&& work, double (*now)() = ProcessorSeconds)
{
    const double start = now();
    work();
    return now() - start;
}

// The compiler takes `value` for read, and all memory for written.
template <class Value>
void Keep(const Value& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

}  // namespace tamur::bench
