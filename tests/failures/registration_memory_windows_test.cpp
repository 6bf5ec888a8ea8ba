// Memory that runs out while the component is registered.
#include <gtest/gtest.h>

#include "linked/memory_watch.h"
#include "platform/platform.h"
#include "server/registration.h"

namespace tamur::test {
namespace {

// Nothing is written: this program has neither the scripts nor the type library.
template <class Step>
void ExpectOutOfMemory(Step step)
{
    EXPECT_NE(step(), S_OK);
    for (const Failing how : {Failing::kOnce, Failing::kFromThereOn}) {
        for (std::uint64_t i = 1;; ++i) {
            MemoryWatch memory;
            memory.FailAt(i, how);
            const HRESULT result = step();
            memory.FailNoMore();
            if (!memory.HasFailed()) {
                EXPECT_GT(i, 1u);
                break;
            }
            EXPECT_EQ(result, E_OUTOFMEMORY) << i;
            (void)platform::PrepareForBadAlloc();
            EXPECT_EQ(memory.BlocksAlive(), 0) << i;
        }
    }
}

TEST(FailingMemory, EveryAllocationOfARegistrationMayFail)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    constexpr unsigned kScript = 13502;
    ExpectOutOfMemory([] { return RunRegistryScript(kScript, TRUE); });
    ExpectOutOfMemory([] { return RunRegistryScript(kScript, FALSE); });
    ExpectOutOfMemory(RegisterTypeLibrary);
    ExpectOutOfMemory(UnregisterTypeLibrary);
    CoUninitialize();
}

}  // namespace
}  // namespace tamur::test
