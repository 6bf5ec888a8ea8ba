// Files are opened by their name as it is, of any length that the system takes.
#include <gtest/gtest.h>

#include "conformance/import_paths.h"
#include "support/special_files.h"

namespace tamur::test {
namespace {

TEST(Paths, CharactersOfEveryAlphabetAreFine)
{
    const NamedFile file("-模型.txt");
    ExpectImported(WideOf(file.Path()));
    ExpectRefused(WideOf(file.Path()) + Wide("x"), Utf8Of(file.Path()) + "x");
}

TEST(Paths, LookalikeIsAnotherName)
{
    const NamedFile file("-portique O.txt");
    const std::string path = Replaced(Utf8Of(file.Path()), "portique O", "portique Ω");
    ExpectRefused(Wide(path), path);
}

TEST(Paths, BlanksAndPointsAtTheEndCount)
{
    const NamedFile file(".txt");
    for (const char* end : {" ", "  ", ".", ". ."}) {
        ExpectRefused(std::filesystem::path(file.Path()) += end);
    }
}

TEST(Paths, LongerThan260CharactersIsFine)
{
    const LongPathFile file;
    ASSERT_GT(WideOf(file.Path()).size(), 260u);
    ExpectImported(WideOf(file.Path()));
}

TEST(Paths, DeviceIsRefused)
{
    ExpectRefused(std::filesystem::path("/dev/null"));
}

}  // namespace
}  // namespace tamur::test
