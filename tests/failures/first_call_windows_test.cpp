// Registration as the first call of a process without any memory.
#include "failures/first_call.h"

STDAPI DllRegisterServer();
STDAPI DllUnregisterServer();

namespace tamur::test {
namespace {

// The first allocation only: later ones are the registrar's.
TEST_P(FirstCallDeathTest, OfARegistrationIsOutOfMemory)
{
    EXPECT_EXIT(CallFirst([] { return DllRegisterServer(); }, 1, GetParam(), E_OUTOFMEMORY),
                testing::ExitedWithCode(kAnswered), "");
    EXPECT_EXIT(CallFirst([] { return DllUnregisterServer(); }, 1, GetParam(), E_OUTOFMEMORY),
                testing::ExitedWithCode(kAnswered), "");
}

}  // namespace
}  // namespace tamur::test
