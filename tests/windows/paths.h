// The files of the build that these tests use.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tamur::test {

inline std::wstring Widened(std::string_view ascii)
{
    return {ascii.begin(), ascii.end()};
}

// As programs of Windows take it: with a drive and backslashes.
inline std::wstring FullPath(std::string_view path)
{
    wchar_t full[MAX_PATH] = {};
    GetFullPathNameW(Widened(path).c_str(), MAX_PATH, full, nullptr);
    return full;
}

inline std::wstring ComponentPath()
{
    return FullPath(TAMUR_COMPONENT_PATH);
}
inline std::wstring RegistrationFreeHostPath()
{
    return FullPath(TAMUR_REGISTRATION_FREE_HOST_PATH);
}

}  // namespace tamur::test
