// Only files are read: a device may never end.
#include <gtest/gtest.h>

#include "support/cannot_open.h"
#include "support/model_text.h"

namespace tamur::test {
namespace {

TEST(EndlessDevice, IsRefusedWithoutBeingRead)
{
    const std::string device = "/dev/zero";
    if (!std::filesystem::exists(device)) GTEST_SKIP() << "the system has none";
    CaughtMessageBoxes boxes;
    const auto reader = NewReader();
    EXPECT_EQ(ImportFile(*reader, device), E_FAIL);
    ExpectCannotOpen(boxes, device);
}

}  // namespace
}  // namespace tamur::test
