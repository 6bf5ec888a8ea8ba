// The self-weight loads, or the thermal loads, of the model.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/kept_ranks.h"
#include "model/loads.h"
#include "model/sorted_map.h"
#include "model/table.h"

namespace tamur {

// Loads in the order of the file, from which whole load cases can be taken out again. Removed loads
// are only marked: removing costs what is removed, not what is left. What was read stays linked for
// the next import, which costs what it adds.
class GroupLoadTable {
 public:
    explicit GroupLoadTable(Arena& arena) : loads_(arena), nexts_(arena) {}

    // What hosts read, right after Settle: the loads that are not removed.
    [[nodiscard]] std::size_t Size() const { return kept_.Size(); }
    [[nodiscard]] const GroupLoad& operator[](std::size_t rank) const
    {
        return loads_[kept_.PlaceOf(rank)];
    }

    void Append(const GroupLoad& load);

    // The load appended last, while it is not removed.
    [[nodiscard]] const GroupLoad& Newest() const { return loads_[loads_.Size() - 1]; }

    // The first load of its case.
    [[nodiscard]] const GroupLoad& FirstOfNewest() const { return loads_[firstOfNewest_]; }

    void RemoveCase(std::int32_t caseNumber);

    // False when there is none.
    bool RemoveFirstOfCase(std::int32_t caseNumber);

    // Ends the filling. Allocates nothing.
    void Settle() { kept_.Settle(); }

 private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    // The loads of one case that are not removed, linked in order.
    struct Chain {
        std::uint32_t first = kNone;
        std::uint32_t last = kNone;
    };

    void RemoveFirst(Chain& chain);
    void DropTail();

    Table<GroupLoad> loads_;      // removed ones too
    Table<std::uint32_t> nexts_;  // for each load the place of the next one of its case
    KeptRanks kept_;
    SortedMap<Chain> chains_;  // by case number
    std::uint32_t firstOfNewest_ = kNone;
};

}  // namespace tamur
