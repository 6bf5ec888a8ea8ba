// Reading HKEY_CLASSES_ROOT.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tamur::test {

inline bool HasClassKey(const std::wstring& key)
{
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) {
        return false;
    }
    RegCloseKey(opened);
    return true;
}

// The text of a value; the default value when `name` is null.
inline std::optional<std::wstring> ClassValue(const std::wstring& key,
                                              const wchar_t* name = nullptr)
{
    wchar_t text[1024] = {};
    DWORD size = sizeof text;
    if (RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    return text;
}

}  // namespace tamur::test
