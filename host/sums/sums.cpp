#include "host/sums/sums.h"

namespace tamur::host {
namespace {

void Add(Forces& sum, const std::array<double, 6>& values, double factor)
{
    for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += values[i] * factor;
}

std::vector<CaseSum> SumsOfCases(const Structure& structure, const LoadCases& cases)
{
    std::map<int, CaseSum> sums;
    for (const Load& load : structure.loads) {
        CaseSum& sum = sums[load.loadCase];
        ++sum.loads;
        Add(sum.byFrame[load.frame], load.values, load.intensity * load.size);
    }
    std::vector<CaseSum> list;
    for (auto& [number, sum] : sums) {
        sum.number = number;
        const auto found = cases.byNumber.find(number);
        if (found != cases.byNumber.end()) sum.title = cases.cases[found->second].title;
        list.push_back(std::move(sum));
    }
    return list;
}

}  // namespace

Sums SumsOf(const Structure& structure, const LoadCases& cases)
{
    Sums sums;
    sums.cases = SumsOfCases(structure, cases);
    for (const Load& mass : structure.masses) Add(sums.masses, mass.values, 1);
    for (const Bar& bar : structure.bars) {
        sums.lengths[{bar.startSection, bar.endSection}] += bar.length;
    }
    for (const Surface& surface : structure.surfaces) {
        sums.areas[surface.thickness] += surface.area;
    }
    for (const Surface& opening : structure.openings) {
        if (opening.surface == kNone) continue;
        sums.areas[structure.surfaces[opening.surface].thickness] -= opening.area;
    }
    return sums;
}

}  // namespace tamur::host
