// When the library may be unloaded, and that it can be.
#include <gtest/gtest.h>

#include <filesystem>

#ifdef __linux__
#include <malloc.h>
#endif

#include "support/accessor_kinds.h"
#include "conformance/class_objects.h"

namespace tamur::test {
namespace {

bool CanUnload()
{
    return TheComponent().CanUnloadNow();
}

TEST(UnloadQuestion, YesExactlyWhenNothingIsAliveAndNothingLocks)
{
    constexpr unsigned kReader = 1, kClassObject = 2, kServerLock = 4, kSurfaces = 8, kAll = 15;
    for (unsigned alive = 0; alive <= kAll; ++alive) {
        const auto is = [&](unsigned bit) { return (alive & bit) != 0; };
        auto reader = is(kReader) ? NewReader() : ComPtr<ITAMURStructureReader>();
        auto factory =
            is(kClassObject) ? ClassObject(CLSID_TAMURStructureReader) : ComPtr<IClassFactory>();
        if (is(kServerLock)) ClassObject(CLSID_TAMURStructureReader)->LockServer(TRUE);
        auto surfaces = is(kSurfaces) ? NewSurfaceAccessor() : ComPtr<ITMRSurfaciqueAccessor>();
        EXPECT_EQ(CanUnload(), alive == 0) << alive;

        surfaces = {};
        if (is(kServerLock)) ClassObject(CLSID_TAMURStructureReader)->LockServer(FALSE);
        factory = {};
        EXPECT_EQ(CanUnload(), !is(kReader)) << alive;
        reader = {};
        EXPECT_TRUE(CanUnload()) << alive;
    }
}

TEST(UnloadQuestion, ServerLocksAreCounted)
{
    const auto lock = [](BOOL on) {
        return ClassObject(CLSID_TMRSurfaciqueAccessor)->LockServer(on);
    };
    EXPECT_EQ(lock(TRUE), S_OK);
    EXPECT_EQ(lock(TRUE), S_OK);
    EXPECT_EQ(lock(FALSE), S_OK);
    EXPECT_FALSE(CanUnload());
    EXPECT_EQ(lock(FALSE), S_OK);
    EXPECT_TRUE(CanUnload());
}

TEST(UnloadQuestion, EveryAccessorKeepsTheLibraryLoadedWithoutItsReader)
{
    for (const AccessorKind& kind : AccessorKinds()) {
        auto reader = NewReader();
        auto accessor = kind.make(*reader);
        reader = {};
        EXPECT_FALSE(CanUnload()) << kind.name;
        accessor = {};
        EXPECT_TRUE(CanUnload()) << kind.name;
    }
}

// A copy of the component in a place of its own: it is loaded for these tests alone.
class CopiedComponent : public testing::Test {
 protected:
    CopiedComponent()
    {
        std::filesystem::create_directory(folder_);
        std::filesystem::copy_file(LoadedPath(), path_);
    }
    ~CopiedComponent() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    void LoadUseAndUnload() const
    {
        const Component component(path_.string());
        const auto reader = component.CreateReader();
        const auto accessor = GetAccessor(*reader, &ITAMURStructureReader::GetNodeAccessor);
        EXPECT_FALSE(component.CanUnloadNow());
    }

    [[nodiscard]] bool IsLoaded() const
    {
#ifdef _WIN32
        return GetModuleHandleW(path_.c_str()) != nullptr;
#else
        void* const library = dlopen(path_.c_str(), RTLD_NOW | RTLD_NOLOAD);
        if (library == nullptr) return false;
        dlclose(library);
        return true;
#endif
    }

 private:
    static std::filesystem::path LoadedPath()
    {
        void* const function = TheComponent().Function<void*>("DllGetClassObject");
#ifdef _WIN32
        HMODULE library = nullptr;
        GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<const wchar_t*>(function), &library);
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(library, path, MAX_PATH);
        return path;
#else
        Dl_info info = {};
        dladdr(function, &info);
        return info.dli_fname;
#endif
    }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() /
        ("tamur-copy-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + "-" +
         std::to_string(reinterpret_cast<std::uintptr_t>(this)));
    std::filesystem::path path_ = folder_ / LoadedPath().filename();
};

TEST_F(CopiedComponent, IsLoadedAndUnloadedOverAndOver)
{
    constexpr int kCycles = 1000;
    for (int i = 0; i < kCycles; ++i) {
        LoadUseAndUnload();
        ASSERT_FALSE(IsLoaded()) << "after " << i << " cycles";
    }
}

TEST_F(CopiedComponent, LeavesNoMemoryBehind)
{
#ifdef __linux__
    const auto inUse = [] { return mallinfo2().uordblks; };
    // What the loader and the allocator keep for the next time settles after a while.
    for (int i = 0; i < 50; ++i) LoadUseAndUnload();
    const auto before = inUse();
    for (int i = 0; i < 50; ++i) LoadUseAndUnload();
    EXPECT_LE(inUse(), before);
#else
    GTEST_SKIP() << "the linked-in run time keeps a few blocks for each load";
#endif
}

}  // namespace
}  // namespace tamur::test
