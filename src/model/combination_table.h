// The combinations, and the one that counts for each case number.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/loads.h"
#include "model/sorted_map.h"
#include "model/table.h"

namespace tamur {

class CombinationTable {
 public:
    explicit CombinationTable(Arena& arena) : all_(arena) {}

    void Append(const Combination& combination);

    // Ends the filling. Allocates nothing.
    void Settle() { places_.Settle(); }

    // What hosts see, right after Settle: the last combination of each case number, ascending.
    [[nodiscard]] std::size_t Size() const { return places_.Size(); }
    [[nodiscard]] const Combination& operator[](std::size_t rank) const
    {
        return all_[places_.AtRank(rank)];
    }

    // Null when there is none.
    [[nodiscard]] const Combination* Find(std::int32_t caseNumber) const;

 private:
    Table<Combination> all_;  // every combination, in the order of the file
    SortedMap<std::uint32_t> places_;
};

}  // namespace tamur
