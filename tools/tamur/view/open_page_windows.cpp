#include "open_page.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>
#include <stdexcept>

namespace tamur::tool {

void OpenPage(const std::filesystem::path& page)
{
    const std::wstring path = std::filesystem::absolute(page).wstring();
    const HINSTANCE result =
        ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    constexpr std::intptr_t kLargestError = 32;  // as its description says
    if (reinterpret_cast<std::intptr_t>(result) <= kLargestError) {
        throw std::runtime_error("the page was written, but nothing opens it");
    }
}

}  // namespace tamur::tool
