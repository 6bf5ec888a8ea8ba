// Where the columns of the rows are.
#pragma once

#include <string>

namespace tamur::host {

// A line for each table, "bars 144", and for each of its columns, "bars.start 88 24".
[[nodiscard]] std::string RowLayout();

}  // namespace tamur::host
