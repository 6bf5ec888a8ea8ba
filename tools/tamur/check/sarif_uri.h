// Paths as SARIF names files.
#pragma once

#include <string>
#include <string_view>

namespace tamur::tool {

// A relative path stays relative, one with a root becomes "file:///...": what URIs do not allow is
// escaped, and the separators of Windows are slashes.
[[nodiscard]] std::string SarifUriOf(std::string_view path);

}  // namespace tamur::tool
