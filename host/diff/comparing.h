// What the comparisons of all tables share.
#pragma once

#include <utility>
#include <vector>

#include "host/diff/compared_tables.h"

namespace tamur::host {

struct Comparing {
    explicit Comparing(double apart) : tolerance(apart) {}

    // The number of the group of those elements with that rank from 1 on; the rank itself when
    // there is none.
    [[nodiscard]] int GroupNumber(Side side, int elements, int rank) const
    {
        const auto& groups = side == Side::kBefore ? groupsBefore : groupsAfter;
        const auto place = static_cast<std::size_t>(rank) - 1;
        const bool isThere = place < groups.size() && groups[place].first == elements;
        return isThere ? groups[place].second : rank;
    }
    [[nodiscard]] const Identities* IdentitiesOf(Side side) const
    {
        return side == Side::kBefore ? nullptr : &identities;
    }

    Tolerance tolerance;
    Identities identities;
    // The kinds of elements and the numbers of the groups, by their ranks.
    std::vector<std::pair<int, int>> groupsBefore, groupsAfter;
};

}  // namespace tamur::host
