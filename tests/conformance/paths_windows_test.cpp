// Files are opened by their name in the ANSI code page, and within the oldest length limit.
#include <gtest/gtest.h>

#include "conformance/import_paths.h"
#include "support/special_files.h"

namespace tamur::test {
namespace {

TEST(Paths, CharacterOutsideTheCodePageIsAQuestionMark)
{
    const NamedFile file("-模型.txt");
    ExpectRefused(WideOf(file.Path()), Replaced(Utf8Of(file.Path()), "模型", "??"));
}

// The letter that looks most like it is taken, and so another file found.
TEST(Paths, LookalikeInTheCodePageIsTaken)
{
    const NamedFile file("-portique O.txt");
    ExpectImported(Wide(Replaced(Utf8Of(file.Path()), "portique O", "portique Ω")));
}

TEST(Paths, BlanksAndPointsAtTheEndDoNotCount)
{
    const NamedFile file(".txt");
    for (const char* end : {" ", "  ", ".", ". ."}) ExpectImported(WideOf(file.Path()) + Wide(end));
}

TEST(Paths, LongerThan260CharactersIsRefused)
{
    const LongPathFile file("\\\\?\\");
    ASSERT_GT(WideOf(file.Path()).size(), 260u);
    ExpectRefused(file.Path());
}

TEST(Paths, DeviceIsRefused)
{
    ExpectRefused(std::filesystem::path("NUL"));
}

}  // namespace
}  // namespace tamur::test
