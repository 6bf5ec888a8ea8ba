#include <gmock/gmock.h>

#include "checked_file.h"

namespace tamur::test {
namespace {

// A regular file by its looks, whose first byte cannot be read.
TEST(Refusals, AFileThatCannotBeRead)
{
    const CheckedFile file("/proc/self/mem");
    EXPECT_THAT(file.Codes(), testing::ElementsAre("TMR006"));
    ASSERT_TRUE(file.imported.refusal);
    EXPECT_THAT(host::TextOf(*file.imported.refusal, host::Language::kEnglish),
                testing::HasSubstr("Input/output error"));
    EXPECT_THAT(host::TextOf(*file.imported.refusal, host::Language::kFrench),
                testing::HasSubstr("(erreur d'entrée-sortie)"));
}

}  // namespace
}  // namespace tamur::test
