#include "model/combination_table.h"

namespace tamur {

void CombinationTable::Append(const Combination& combination)
{
    all_.Prepare() = combination;
    places_.FindOrAdd(combination.caseNumber) = static_cast<std::uint32_t>(all_.Size());
    all_.Commit();
}

const Combination* CombinationTable::Find(std::int32_t caseNumber) const
{
    const std::uint32_t* const place = places_.Find(caseNumber);
    return place != nullptr ? &all_[*place] : nullptr;
}

}  // namespace tamur
