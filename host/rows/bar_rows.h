// Bars as rows, from the model itself: a record of the contract carries a copy of all that a bar
// refers to, which takes longer than the import of the bar.
#pragma once

#include "host/rows/table_rows.h"

struct ITAMURStructureReader;

namespace tamur::host {

// The reader is one that ImportFile made.
void AddBars(ITAMURStructureReader& reader, RowTable& table);

// The place of the material of each surface; -1 when there is none.
[[nodiscard]] std::int32_t MaterialOfSurface(ITAMURStructureReader& reader, std::size_t rank);

}  // namespace tamur::host
