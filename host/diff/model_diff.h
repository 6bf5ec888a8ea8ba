// What changed from one model to another.
#pragma once

#include <TAMURReader.h>

#include <string>
#include <vector>

#include "host/diff/table_diff.h"

namespace tamur::host {

struct Counts {
    long long before = 0;
    long long after = 0;
};

struct ModelDiff {
    std::vector<FieldChange> settings;
    std::vector<FieldChange> modes;
    std::vector<TableDiff> tables;  // all of the contract, in its order
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
