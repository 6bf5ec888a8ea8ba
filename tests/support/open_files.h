// Whether this process has a file open.
#pragma once

#include <filesystem>

namespace tamur::test {

bool IsHeldOpen(const std::filesystem::path& path);

}  // namespace tamur::test
