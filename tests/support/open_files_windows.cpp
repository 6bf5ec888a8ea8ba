#include <windows.h>

#include "support/open_files.h"

namespace tamur::test {

// Asking for the file alone is refused while anybody else has it.
bool IsHeldOpen(const std::filesystem::path& path)
{
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(file);
    return false;
}

}  // namespace tamur::test
