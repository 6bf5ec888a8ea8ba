// Whether this process has a file open.
#pragma once

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#endif

namespace tamur::test {

inline bool IsHeldOpen(const std::filesystem::path& path)
{
#ifdef _WIN32
    // Asking for the file alone is refused while anybody else has it.
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(file);
    return false;
#else
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code notAFile;
        if (std::filesystem::equivalent(entry.path(), path, notAFile)) return true;
    }
    return false;
#endif
}

}  // namespace tamur::test
