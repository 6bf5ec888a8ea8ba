// Shows a page in the browser of the user.
#pragma once

#include <filesystem>

namespace tamur::tool {

// Throws std::runtime_error when there is nothing to show it with.
void OpenPage(const std::filesystem::path& page);

}  // namespace tamur::tool
