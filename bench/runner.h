// Measures subjects in turns, so that what disturbs the machine disturbs all of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tamur::bench {

// Processor time of the calling thread, in seconds: on a machine shared with others it varies
// less than time on the clock, and an import waits for nothing once its file is in memory.
[[nodiscard]] double ThreadSeconds();

// Time on the clock.
[[nodiscard]] double ClockSeconds();

// What `work` takes.
template <class Work>
double Timed(Work&& work)
{
    const double start = ThreadSeconds();
    work();
    return ThreadSeconds() - start;
}

struct Subject {
    std::string name;
    std::function<double()> measure;  // one run, in seconds
};

class Samples {
 public:
    void Add(double value);

    [[nodiscard]] double Median() const { return At(0.5); }
    // Between the quartiles, relative to the median.
    [[nodiscard]] double Spread() const { return (At(0.75) - At(0.25)) / At(0.5); }

 private:
    [[nodiscard]] double At(double share) const;

    std::vector<double> sorted_;
};

// One run of each to touch memory and caches, then `rounds` rounds A, B, C, A, B, C, ...; every
// other round backwards.
[[nodiscard]] std::vector<Samples> MeasureInterleaved(const std::vector<Subject>& subjects,
                                                      int rounds);

}  // namespace tamur::bench
