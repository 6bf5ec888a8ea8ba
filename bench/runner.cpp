#include "runner.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tamur::bench {
namespace {

double Quantile(Samples& samples, double share)
{
    std::sort(samples.begin(), samples.end());
    const double place = share * static_cast<double>(samples.size() - 1);
    const std::size_t below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, samples.size() - 1);
    return std::lerp(samples[below], samples[above], place - std::floor(place));
}

double MeanOf(const Subject& subject, int runs)
{
    double seconds = 0;
    for (int i = 0; i < runs; ++i) seconds += subject();
    return seconds / runs;
}

}  // namespace

std::vector<Samples> MeasureInTurns(const std::vector<Subject>& subjects, Effort effort)
{
    constexpr double kMostRuns = 10000;
    std::vector<int> runs;
    for (const Subject& subject : subjects) {
        const double needed = std::ceil(effort.seconds / std::max(subject(), 1e-9));
        runs.push_back(static_cast<int>(std::clamp(needed, 1.0, kMostRuns)));
    }
    std::vector<Samples> samples(subjects.size());
    for (int round = 0; round < effort.rounds; ++round) {
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            const std::size_t turn = round % 2 == 0 ? i : subjects.size() - 1 - i;
            samples[turn].push_back(MeanOf(subjects[turn], runs[turn]));
        }
    }
    return samples;
}

double Median(Samples samples)
{
    return Quantile(samples, 0.5);
}

double Spread(Samples samples)
{
    return (Quantile(samples, 0.75) - Quantile(samples, 0.25)) / Quantile(samples, 0.5);
}

Samples Quotients(const Samples& above, const Samples& below)
{
    Samples quotients;
    std::transform(above.begin(), above.end(), below.begin(), std::back_inserter(quotients),
                   std::divides());
    return quotients;
}

Samples Scaled(Samples samples, double factor)
{
    for (double& sample : samples) sample *= factor;
    return samples;
}

}  // namespace tamur::bench
