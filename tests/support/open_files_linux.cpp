#include "support/open_files.h"

namespace tamur::test {

bool IsHeldOpen(const std::filesystem::path& path)
{
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code notAFile;
        if (std::filesystem::equivalent(entry.path(), path, notAFile)) return true;
    }
    return false;
}

}  // namespace tamur::test
