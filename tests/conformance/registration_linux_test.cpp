// Systems without a registry: installers may call the same two functions, which have nothing to do.
#include <gtest/gtest.h>

#include "support/component_under_test.h"

STDAPI DllRegisterServer();
STDAPI DllUnregisterServer();

namespace tamur::test {
namespace {

TEST(RegistrationElsewhere, SucceedsAnyNumberOfTimesAndChangesNothing)
{
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(DllRegisterServer(), S_OK);
        EXPECT_NE(NewReader().Get(), nullptr);
        EXPECT_EQ(DllUnregisterServer(), S_OK);
        EXPECT_NE(NewReader().Get(), nullptr);
    }
}

}  // namespace
}  // namespace tamur::test
