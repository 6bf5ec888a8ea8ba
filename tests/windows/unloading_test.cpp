// What is left of the DLL after it was unloaded: hosts load and unload it as they like.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <iterator>
#include <string>

#include "models/every_table.h"
#include "support/read_everything.h"
#include "windows/paths.h"

namespace tamur::test {
namespace {

// Another file than the one that these tests keep loaded.
class OwnCopy {
 public:
    OwnCopy() : path_(std::filesystem::temp_directory_path() / L"TamurUnloaded.dll")
    {
        std::filesystem::copy_file(ComponentPath(), path_,
                                   std::filesystem::copy_options::overwrite_existing);
    }
    OwnCopy(const OwnCopy&) = delete;
    OwnCopy& operator=(const OwnCopy&) = delete;
    ~OwnCopy() { std::filesystem::remove(path_); }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
    std::filesystem::path path_;
};

struct Taken {
    std::int64_t privateBytes;
    std::int64_t heapBytes;
    std::int64_t handles;
};

std::int64_t PrivateBytes()
{
    std::int64_t bytes = 0;
    const char* at = nullptr;
    for (MEMORY_BASIC_INFORMATION part; VirtualQuery(at, &part, sizeof part) != 0;) {
        if (part.State == MEM_COMMIT && part.Type == MEM_PRIVATE) {
            bytes += static_cast<std::int64_t>(part.RegionSize);
        }
        at = static_cast<const char*>(part.BaseAddress) + part.RegionSize;
    }
    return bytes;
}

// What the heaps have given out: to the byte, where a heap itself grows in large steps.
std::int64_t HeapBytes()
{
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(std::size(heaps), heaps);
    std::int64_t bytes = 0;
    for (DWORD i = 0; i < count && i < std::size(heaps); ++i) {
        HeapLock(heaps[i]);
        for (PROCESS_HEAP_ENTRY entry = {}; HeapWalk(heaps[i], &entry);) {
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
        }
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

Taken TakenByThisProcess()
{
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return {PrivateBytes(), HeapBytes(), handles};
}

void LoadImportUnload(const std::filesystem::path& library, const std::filesystem::path& model)
{
    {
        const Component component(library);
        const auto reader = component.CreateReader();
        ASSERT_EQ(ImportFile(*reader, model), S_OK);
        (void)ReadEverything(*reader);
    }
    ASSERT_EQ(GetModuleHandleW(library.c_str()), nullptr);
}

TEST(Unloading, LeavesNothingInTheProcess)
{
    constexpr int kCycles = 500;
    const OwnCopy library;
    const TemporaryFile model(EveryTable().Text());
    for (int i = 0; i < 20; ++i) LoadImportUnload(library.Path(), model.Path());
    const Taken before = TakenByThisProcess();
    for (int i = 0; i < kCycles; ++i) LoadImportUnload(library.Path(), model.Path());
    const Taken after = TakenByThisProcess();
    RecordProperty("private bytes", std::to_string(after.privateBytes - before.privateBytes));
    RecordProperty("heap bytes", std::to_string(after.heapBytes - before.heapBytes));
    RecordProperty("handles", std::to_string(after.handles - before.handles));
    EXPECT_GT(before.heapBytes, 0);  // otherwise nothing was measured
    EXPECT_LT(after.privateBytes - before.privateBytes, 1 << 20);
    EXPECT_LT(after.heapBytes - before.heapBytes, 1 << 20);
    EXPECT_LT(after.handles - before.handles, kCycles / 10);
}

}  // namespace
}  // namespace tamur::test
