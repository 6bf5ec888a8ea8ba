#include "model/group_table.h"

#include <algorithm>

namespace tamur {

void GroupTable::Restart()
{
    groups_.Restart();
    ranks_.clear();
}

void GroupTable::Finish()
{
    ranks_.reserve(groups_.Size());
    for (std::size_t i = 0; i < groups_.Size(); ++i) {
        const Group& group = groups_[i];
        ranks_.push_back({{group.elementKind, group.number}, static_cast<std::int32_t>(i + 1)});
    }
    std::sort(ranks_.begin(), ranks_.end());
}

std::int32_t GroupTable::RankOf(std::int32_t elementKind, std::int32_t number) const
{
    const Key key{elementKind, number};
    const auto found = std::lower_bound(
        ranks_.begin(), ranks_.end(), key,
        [](const auto& candidate, const Key& wanted) { return candidate.first < wanted; });
    return found != ranks_.end() && found->first == key ? found->second : 0;
}

}  // namespace tamur
