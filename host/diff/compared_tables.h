// One table in both models, whatever the type of its records: what the search for pairs needs.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "host/diff/field_changes.h"
#include "host/diff/matching.h"
#include "host/kinds.h"

namespace tamur::host {

// What a record is called: the published names of its fields with their values, all but one of
// which are the same for all records of an equal kind (the kind of the elements of a group).
using Key = std::vector<std::pair<std::string, Value>>;

enum class Side : std::uint8_t { kBefore, kAfter };

class ComparedTables {
 public:
    virtual ~ComparedTables() = default;

    [[nodiscard]] virtual Kind TheKind() const = 0;
    [[nodiscard]] virtual bool AreElements() const = 0;
    [[nodiscard]] virtual bool AreReferredTo() const = 0;

    // Of all records, with the digests of all that they contain beside their keys.
    [[nodiscard]] virtual Entries EntriesOf(Side side) const = 0;
    // Their contents become the digests of that part.
    virtual void Digest(Side side, Entries& entries, Part part) const = 0;
    // Of all that the record contains, its key too.
    [[nodiscard]] virtual std::uint64_t WholeDigest(Side side, std::int32_t rank) const = 0;
    // Nothing for a rank below 0.
    [[nodiscard]] virtual Key KeyAt(Side side, std::int32_t rank) const = 0;
    [[nodiscard]] virtual std::vector<FieldChange> Fields(std::int32_t before,
                                                          std::int32_t after) const = 0;
};

}  // namespace tamur::host
