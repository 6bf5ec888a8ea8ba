// A process without any memory whose first call of the component is this one.
#include <gtest/gtest.h>

#include <cstdlib>

#include "TAMURReader.h"
#include "linked/memory_watch.h"
#include "platform/platform.h"

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv);
STDAPI DllCanUnloadNow();

namespace tamur::test {
namespace {

// Ends the process with 0 when the call answers as expected.
template <class Call>
[[noreturn]] void CallFirst(Call call, Failing how, HRESULT expected)
{
    HRESULT result = S_OK;
    {
        MemoryWatch memory(MemoryWatch::Thread::kAsItIs);
        memory.FailAt(1, how);
        result = call();
        memory.FailNoMore();
    }
    std::_Exit(result == expected ? 0 : 1);
}

class FirstCallDeathTest : public testing::TestWithParam<Failing> {
 protected:
    // A new process for each call, not a copy of this one, which has called before.
    FirstCallDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    ~FirstCallDeathTest() override { GTEST_FLAG_SET(death_test_style, "fast"); }
};

TEST_P(FirstCallDeathTest, OfDllGetClassObjectIsOutOfMemory)
{
    const auto call = [] {
        void* factory = nullptr;
        return DllGetClassObject(CLSID_TAMURStructureReader, IID_IClassFactory, &factory);
    };
    EXPECT_EXIT(CallFirst(call, GetParam(), E_OUTOFMEMORY), testing::ExitedWithCode(0), "");
}

TEST_P(FirstCallDeathTest, OfDllCanUnloadNowNeedsNoMemory)
{
    EXPECT_EXIT(CallFirst([] { return DllCanUnloadNow(); }, GetParam(), S_OK),
                testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(BothWays, FirstCallDeathTest,
                         testing::Values(Failing::kOnce, Failing::kFromThereOn));

}  // namespace
}  // namespace tamur::test
