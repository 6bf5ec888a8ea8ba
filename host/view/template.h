// The built page without a model, as it is in viewer/dist/.
#pragma once

#include <string_view>

namespace tamur::host::view {

[[nodiscard]] std::string_view PageTemplate();

}  // namespace tamur::host::view
