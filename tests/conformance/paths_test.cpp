// Which paths Import can open, and how the others appear in its message box.
#include <gtest/gtest.h>

#include "conformance/import_paths.h"
#include "support/special_files.h"
#include "support/withheld_file.h"

namespace tamur::test {
namespace {

// ------------------------------------------------------------------ characters

TEST(Paths, AccentsAreFine)
{
    const NamedFile file("-été à Orléans, cœur de ville, 5 €.txt");
    ASSERT_TRUE(Utf8Of(file.Path()).ends_with("ville, 5 €.txt"));
    ExpectImported(WideOf(file.Path()));
}

TEST(Paths, AccentsAreShown)
{
    ExpectRefused(Wide("Modèles à vérifier, 5 €.txt"), "Modèles à vérifier, 5 €.txt");
}

TEST(Paths, HalfASurrogatePairIsAQuestionMark)
{
    ExpectRefused(Wide("no-such-") + OLECHAR{0xD83D} + Wide(".txt"), "no-such-?.txt");
}

TEST(Paths, BlanksAreFine)
{
    ExpectImported(WideOf(NamedFile(" - deux  blancs .txt").Path()));
}

TEST(Paths, PercentSignsAreShownAsTheyAre)
{
    ExpectRefused(Wide("no %s such %d file 100%.txt"), "no %s such %d file 100%.txt");
}

TEST(Paths, EndAtANul)
{
    const NamedFile file(".txt");
    const WideString rest = OLECHAR{0} + Wide("rest");
    ExpectImported(WideOf(file.Path()) + rest);
    ExpectRefused(Wide("no-such-file.txt") + rest, "no-such-file.txt");
    ExpectRefused(rest, "");
}

TEST(Paths, EmptyOneIsRefused)
{
    ExpectRefused(WideString(), "");
}

TEST(Paths, NullIsTheEmptyString)
{
    const CaughtMessageBoxes boxes;
    EXPECT_EQ(NewReader()->Import(nullptr), E_FAIL);
    ExpectCannotOpen(boxes, "");
}

// ------------------------------------------------------------------ places

TEST(Paths, RelativeOnesStartAtTheCurrentDirectory)
{
    const NamedFile file(".txt");
    const std::filesystem::path name = file.Path().filename();
    {
        const CurrentDirectory elsewhere(file.Path().root_path());
        ExpectRefused(name);
    }
    const CurrentDirectory current(file.Path().parent_path());
    ExpectImported(WideOf(name));
    ExpectImported(Wide("./") + WideOf(name));
}

TEST(Paths, SlashesAreFine)
{
    const NamedFile file(".txt");
    ExpectImported(Wide(file.Path().generic_string()));
}

// ------------------------------------------------------------------ lengths

TEST(Paths, LongNameIsRefusedAndShownWhole)
{
    ExpectRefused(std::string(256, 'n') + ".txt");
    ExpectRefused(std::string(1500, 'n') + ".txt");
}

// ------------------------------------------------------------------ what cannot be opened

TEST(Paths, DirectoryIsRefused)
{
    const std::filesystem::path directory = std::filesystem::temp_directory_path();
    ExpectRefused(directory);
    ExpectRefused(directory.parent_path());
    ExpectRefused(std::filesystem::path("."));
}

TEST(Paths, PathThroughAFileIsRefused)
{
    const NamedFile file(".txt");
    ExpectRefused(file.Path() / "model.txt");
}

TEST(Paths, FileThatMayNotBeReadIsRefused)
{
    const NamedFile file(".txt");
    ExpectImported(WideOf(file.Path()));
    const WithheldFile withheld(file.Path());
    if (!withheld.IsWithheld()) GTEST_SKIP() << "root may read every file";
    ExpectRefused(file.Path());
}

}  // namespace
}  // namespace tamur::test
