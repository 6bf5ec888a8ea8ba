// What changed in one table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "host/diff/compared_tables.h"

namespace tamur::host {

enum class What : std::uint8_t { kChanged, kMoved, kAdded, kRemoved, kRenumbered };
inline constexpr int kWhatCount = static_cast<int>(What::kRenumbered) + 1;

// One record, by its ranks before and after; -1 where it is not.
struct Change {
    What what;
    std::int32_t before;
    std::int32_t after;
};

struct Description {
    Key before;  // empty for what was added
    Key after;   // empty for what was removed
    std::vector<FieldChange> fields;
    std::optional<Movement> movement;
};

// A change is some bytes; what is said of it is read from the models again, which must still be
// there.
class TableDiff {
 public:
    // Compares them. What it learns of materials, sections and releases goes into `identities`.
    TableDiff(std::unique_ptr<ComparedTables> tables, Identities& identities);

    [[nodiscard]] Kind TheKind() const { return tables_->TheKind(); }
    // In the order of identifiers and numbers; of names, as in the file.
    [[nodiscard]] const std::vector<Change>& Changes() const { return changes_; }
    [[nodiscard]] std::size_t CountOf(What what) const;
    [[nodiscard]] Description Describe(const Change& change) const;

 private:
    std::unique_ptr<ComparedTables> tables_;
    std::vector<Change> changes_;
};

}  // namespace tamur::host
