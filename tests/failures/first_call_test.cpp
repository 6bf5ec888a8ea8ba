// Calls that every host makes as the first one of a process without any memory.
#include "failures/first_call.h"

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv);
STDAPI DllCanUnloadNow();

namespace tamur::test {
namespace {

TEST_P(FirstCallDeathTest, OfDllGetClassObjectIsOutOfMemory)
{
    EXPECT_GE(FailEachAllocationOf([] {
                  void* factory = nullptr;
                  return DllGetClassObject(CLSID_TAMURStructureReader, IID_IClassFactory, &factory);
              }),
              1u);
}

TEST_P(FirstCallDeathTest, OfDllCanUnloadNowNeedsNoMemory)
{
    EXPECT_EQ(FailEachAllocationOf([] { return DllCanUnloadNow(); }), 0u);
}

INSTANTIATE_TEST_SUITE_P(BothWays, FirstCallDeathTest,
                         testing::Values(Failing::kOnce, Failing::kFromThereOn));

}  // namespace
}  // namespace tamur::test
