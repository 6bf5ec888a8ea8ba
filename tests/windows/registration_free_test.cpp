#include <gtest/gtest.h>

#include "windows/paths.h"
#include "windows/process.h"
#include "windows/registry.h"

namespace tamur::test {
namespace {

TEST(RegistrationFreeUse, HostWithTheManifestCreatesTheClasses)
{
    ASSERT_FALSE(HasClassKey(L"CLSID\\{6A4EEDF9-1A86-4389-9730-27DFCE62D7BC}"));
    EXPECT_EQ(RunProgram(L"\"" + RegistrationFreeHostPath() + L"\""), 0u);
}

}  // namespace
}  // namespace tamur::test
