#include <windows.h>

#include "support/loaded_library.h"

namespace tamur::test {

bool IsLoaded(const std::filesystem::path& library)
{
    return GetModuleHandleW(library.c_str()) != nullptr;
}

std::filesystem::path LibraryOf(const void* function)
{
    HMODULE library = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        static_cast<const wchar_t*>(function), &library);
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(library, path, MAX_PATH);
    return path;
}

}  // namespace tamur::test
