// The libraries that this process has loaded.
#pragma once

#include <filesystem>

namespace tamur::test {

bool IsLoaded(const std::filesystem::path& library);

// The file that a function was loaded from.
std::filesystem::path LibraryOf(const void* function);

}  // namespace tamur::test
