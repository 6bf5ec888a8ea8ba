// What changed from one model to another.
#pragma once

#include <TAMURReader.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/diff/field_changes.h"
#include "host/kinds.h"

namespace tamur::host {

enum class What : std::uint8_t { kChanged, kMoved, kAdded, kRemoved, kRenumbered };
inline constexpr int kWhatCount = static_cast<int>(What::kRenumbered) + 1;

// One record, by its ranks before and after; -1 where it is not.
struct Change {
    What what;
    std::int32_t before;
    std::int32_t after;
};

// What a record is called: the published names of its fields with their values, all but one of
// which are the same for all records of an equal kind (the kind of the elements of a group).
using Key = std::vector<std::pair<std::string, Value>>;

struct Description {
    Key before;  // empty for what was added
    Key after;   // empty for what was removed
    std::vector<FieldChange> fields;
    std::optional<Movement> movement;
};

// The changes of one table. A change is some bytes; what is said of it is read from the models
// again, which must still be there.
class TableDiff {
 public:
    virtual ~TableDiff() = default;

    [[nodiscard]] virtual Kind TheKind() const = 0;
    // In the order of identifiers and numbers; of names, as in the file.
    [[nodiscard]] const std::vector<Change>& Changes() const { return changes_; }
    [[nodiscard]] std::size_t CountOf(What what) const;
    [[nodiscard]] virtual Description Describe(const Change& change) const = 0;

 protected:
    std::vector<Change> changes_;
};

struct Counts {
    long long before = 0;
    long long after = 0;
};

struct ModelDiff {
    std::vector<FieldChange> settings;
    std::vector<FieldChange> modes;
    std::vector<std::unique_ptr<TableDiff>> tables;  // all of the contract, in its order
    Counts skippedCombinations;
    Counts disabledCombinations;  // served, but their case is not
    std::vector<std::string> messagesAdded;
    std::vector<std::string> messagesRemoved;

    [[nodiscard]] bool IsEmpty() const;
};

// The readers must outlive what is given. `tolerance`: see Tolerance.
[[nodiscard]] ModelDiff Compare(ITAMURStructureReader& before, ITAMURStructureReader& after,
                                double tolerance = 0);

}  // namespace tamur::host
