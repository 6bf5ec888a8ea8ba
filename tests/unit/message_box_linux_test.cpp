// Where message boxes go when a host on a system without them has not said where.
#include <gtest/gtest.h>

#include "platform/platform.h"

namespace tamur::platform {
namespace {

// What a box with an accent and a character beyond the first 65536 writes.
std::string WrittenByABox()
{
    testing::internal::CaptureStderr();
    ShowMessageBox(u"Impossible d'ouvrir \U0001F3D7", u"Étude");
    return testing::internal::GetCapturedStderr();
}

constexpr char kWritten[] = "Étude: Impossible d'ouvrir \U0001F3D7\n";

TEST(MessageBox, GoesToStandardErrorAsUtf8)
{
    EXPECT_EQ(WrittenByABox(), kWritten);
}

TEST(MessageBox, GoesThereAgainWhenItsHandlerIsTakenAway)
{
    int shown = 0;
    const auto count = [](const OLECHAR*, const OLECHAR*, UINT, void* context) {
        return ++*static_cast<int*>(context);
    };
    TamurSetMessageBoxHandler(count, &shown);
    EXPECT_EQ(WrittenByABox(), "");
    EXPECT_EQ(shown, 1);
    TamurSetMessageBoxHandler(nullptr, &shown);
    EXPECT_EQ(WrittenByABox(), kWritten);
    EXPECT_EQ(shown, 1);
}

}  // namespace
}  // namespace tamur::platform
