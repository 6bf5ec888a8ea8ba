// The self-weight loads, or the thermal loads, of the model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>

#include "model/loads.h"
#include "model/table.h"

namespace tamur {

// Loads in the order of the file, from which whole load cases can be taken out again. While an
// import runs, removed loads are only marked; Settle closes the gaps. So removing costs what was
// removed, not what is left.
class GroupLoadTable {
 public:
    explicit GroupLoadTable(Arena& arena) : loads_(arena), links_(arena) {}

    // What hosts read; right after Settle.
    [[nodiscard]] const Table<GroupLoad>& Loads() const { return loads_; }

    void Append(const GroupLoad& load);

    // The load appended last.
    [[nodiscard]] const GroupLoad& Newest() const { return loads_[loads_.Size() - 1]; }

    // The first load of that case; there is one.
    [[nodiscard]] const GroupLoad& FirstOfCase(std::int32_t caseNumber);

    void RemoveCase(std::int32_t caseNumber);

    // False when there is none.
    bool RemoveFirstOfCase(std::int32_t caseNumber);

    // Makes removals take effect, keeping the order of the others. Allocates nothing.
    void Settle();

 private:
    struct Link {
        std::uint32_t next = kNone;  // rank of the next load of the same case
        bool isRemoved = false;
    };

    // The loads of one case that are not removed, linked in order.
    struct Chain {
        std::uint32_t first;
        std::uint32_t last;
    };

    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    void LinkUpTo(std::size_t size);

    Table<GroupLoad> loads_;
    Table<Link> links_;  // by rank, for as many loads as are linked yet
    std::map<std::int32_t, Chain> chains_;
};

}  // namespace tamur
