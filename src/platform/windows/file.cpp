#include "platform/platform.h"

namespace tamur::platform {
namespace {

class File final : public BlockSource {
 public:
    explicit File(HANDLE handle) : handle_(handle) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() override { CloseHandle(handle_); }

    std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override
    {
        OVERLAPPED position = {};
        position.Offset = static_cast<DWORD>(offset);
        position.OffsetHigh = static_cast<DWORD>(offset >> 32);
        DWORD got = 0;
        return ReadFile(handle_, buffer, static_cast<DWORD>(size), &got, &position) ? got : 0;
    }

 private:
    HANDLE handle_;
};

}  // namespace

std::unique_ptr<BlockSource> OpenFile(const std::string& path)
{
    const HANDLE handle =
        CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return nullptr;
    if (GetFileType(handle) != FILE_TYPE_DISK) {
        CloseHandle(handle);
        return nullptr;
    }
    try {
        return std::make_unique<File>(handle);
    } catch (...) {
        CloseHandle(handle);
        throw;
    }
}

}  // namespace tamur::platform
