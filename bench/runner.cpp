#include "runner.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace tamur::bench {

double ThreadSeconds()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double ClockSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void Samples::Add(double value)
{
    sorted_.insert(std::upper_bound(sorted_.begin(), sorted_.end(), value), value);
}

double Samples::At(double share) const
{
    const double place = share * static_cast<double>(sorted_.size() - 1);
    const std::size_t below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted_.size() - 1);
    const double between = place - static_cast<double>(below);
    return sorted_[below] + between * (sorted_[above] - sorted_[below]);
}

std::vector<Samples> MeasureInterleaved(const std::vector<Subject>& subjects, int rounds)
{
    std::vector<Samples> samples(subjects.size());
    for (const Subject& subject : subjects) subject.measure();
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            const std::size_t turn = round % 2 == 0 ? i : subjects.size() - 1 - i;
            samples[turn].Add(subjects[turn].measure());
        }
    }
    return samples;
}

}  // namespace tamur::bench
