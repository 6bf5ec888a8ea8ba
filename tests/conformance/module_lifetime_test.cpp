// When the library may be unloaded, and that it can be.
#include <gtest/gtest.h>

#include "support/accessor_kinds.h"
#include "conformance/class_objects.h"
#include "conformance/copied_component.h"

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

TEST_F(CopiedComponent, IsLoadedAndUnloadedOverAndOver)
{
    constexpr int kCycles = 1000;
    for (int i = 0; i < kCycles; ++i) {
        LoadUseAndUnload();
        ASSERT_FALSE(IsLoaded()) << "after " << i << " cycles";
    }
}

}  // namespace
}  // namespace tamur::test
