// The groups of the last import, and the search for one by kind and number.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "model/properties.h"
#include "model/table.h"

namespace tamur {

class GroupTable {
 public:
    explicit GroupTable(Arena& arena) : groups_(arena) {}

    [[nodiscard]] const Generation<Group>& Groups() const { return groups_; }

    void Restart();
    void Append(const Group& group) { groups_.all.Append(group); }

    // Ends the filling and makes RankOf work.
    void Finish();

    // The rank from 1 of the first group of that element kind and number; 0 when there is none.
    [[nodiscard]] std::int32_t RankOf(std::int32_t elementKind, std::int32_t number) const;

 private:
    using Key = std::pair<std::int32_t, std::int32_t>;  // element kind, number

    Generation<Group> groups_;
    std::vector<std::pair<Key, std::int32_t>> ranks_;  // ascending
};

}  // namespace tamur
