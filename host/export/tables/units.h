// In which units the fields of records are.
#pragma once

#include <string_view>

namespace tamur::host {

// Of a field by the name of its table ("Filaires") and its path ("startPoint.x"); empty for what
// has no unit, or none that is known.
[[nodiscard]] std::string_view UnitOf(std::string_view table, std::string_view path);

}  // namespace tamur::host
