#include "platform/platform.h"

namespace tamur::platform {

std::size_t WidenAnsi(const char* text, std::size_t length, OLECHAR* wide)
{
    if (length == 0) return 0;
    const int size = static_cast<int>(length);
    const int written = MultiByteToWideChar(CP_THREAD_ACP, 0, text, size, wide, size);
    return written > 0 ? static_cast<std::size_t>(written) : 0;
}

std::string NarrowPath(const OLECHAR* path)
{
    const int size = WideCharToMultiByte(CP_ACP, 0, path, -1, nullptr, 0, nullptr, nullptr);
    std::string narrow(size > 0 ? static_cast<std::size_t>(size) : 1, '\0');
    if (size > 0) WideCharToMultiByte(CP_ACP, 0, path, -1, narrow.data(), size, nullptr, nullptr);
    narrow.pop_back();
    return narrow;
}

WideString WidenPath(const std::string& path)
{
    WideString wide(path.size(), 0);
    if (path.empty()) return wide;
    const int size = static_cast<int>(path.size());
    const int written = MultiByteToWideChar(CP_ACP, 0, path.data(), size, wide.data(), size);
    wide.resize(written > 0 ? static_cast<std::size_t>(written) : 0);
    return wide;
}

}  // namespace tamur::platform
