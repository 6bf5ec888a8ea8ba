#include "model/combination_table.h"

#include <algorithm>
#include <numeric>

namespace tamur {

void CombinationTable::Finish()
{
    std::vector<std::uint32_t> index(all_.Size());
    std::iota(index.begin(), index.end(), 0u);
    const auto number = [this](std::uint32_t place) { return all_[place].caseNumber; };
    // The last of each number first, so that unique keeps it.
    std::sort(index.begin(), index.end(), [&](std::uint32_t a, std::uint32_t b) {
        return number(a) != number(b) ? number(a) < number(b) : a > b;
    });
    const auto sameNumber = [&](std::uint32_t a, std::uint32_t b) {
        return number(a) == number(b);
    };
    index.erase(std::unique(index.begin(), index.end(), sameNumber), index.end());
    index_ = std::move(index);
}

const Combination* CombinationTable::Find(std::int32_t caseNumber) const
{
    const auto found = std::lower_bound(index_.begin(), index_.end(), caseNumber,
                                        [this](std::uint32_t place, std::int32_t wanted) {
                                            return all_[place].caseNumber < wanted;
                                        });
    if (found == index_.end() || all_[*found].caseNumber != caseNumber) return nullptr;
    return &all_[*found];
}

}  // namespace tamur
