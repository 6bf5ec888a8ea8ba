// The combinations, and the one that counts for each case number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/loads.h"
#include "model/table.h"

namespace tamur {

class CombinationTable {
 public:
    explicit CombinationTable(Arena& arena) : all_(arena) {}

    void Append(const Combination& combination) { all_.Append(combination); }

    // Ends the filling and renews the index.
    void Finish();

    // The index that hosts see: the last combination of each case number, ascending.
    [[nodiscard]] std::size_t Size() const { return index_.size(); }
    [[nodiscard]] const Combination& operator[](std::size_t rank) const
    {
        return all_[index_[rank]];
    }

    // Null when there is none.
    [[nodiscard]] const Combination* Find(std::int32_t caseNumber) const;

 private:
    Table<Combination> all_;  // every combination, in the order of the file
    std::vector<std::uint32_t> index_;
};

}  // namespace tamur
