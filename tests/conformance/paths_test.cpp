// Which paths Import can open, and how the others appear in its message box.
#include <gtest/gtest.h>

#include "support/cannot_open.h"
#include "support/special_files.h"

namespace tamur::test {
namespace {

using WideString = std::basic_string<OLECHAR>;

// Windows opens files by their name in the ANSI code page, and within its oldest length limit.
#ifdef _WIN32
constexpr bool kIsWindows = true;
constexpr char kDevice[] = "NUL";
#else
constexpr bool kIsWindows = false;
constexpr char kDevice[] = "/dev/null";
#endif

WideString WideOf(const std::filesystem::path& path)
{
    return path.string<OLECHAR>();
}

std::string Utf8Of(const std::filesystem::path& path)
{
    return Utf8(WideStringView(WideOf(path)));
}

HRESULT Import(const WideString& path)
{
    const BSTR name = SysAllocStringLen(path.data(), static_cast<UINT>(path.size()));
    const HRESULT result = NewReader()->Import(name);
    SysFreeString(name);
    return result;
}

void ExpectImported(const WideString& path)
{
    const CaughtMessageBoxes boxes;
    EXPECT_EQ(Import(path), S_OK) << Utf8(WideStringView(path));
    EXPECT_TRUE(boxes.Boxes().empty());
}

void ExpectRefused(const WideString& path, const std::string& shown)
{
    SCOPED_TRACE(shown);
    const CaughtMessageBoxes boxes;
    EXPECT_EQ(Import(path), E_FAIL);
    ExpectCannotOpen(boxes, shown);
}

void ExpectRefused(const std::filesystem::path& path)
{
    ExpectRefused(WideOf(path), Utf8Of(path));
}

std::string Replaced(std::string text, std::string_view what, std::string_view by)
{
    return text.replace(text.find(what), what.size(), by);
}

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

TEST(Paths, CharacterOutsideTheCodePageIsAQuestionMarkOnWindows)
{
    const NamedFile file("-模型.txt");
    const std::string path = Utf8Of(file.Path());
    if (kIsWindows) {
        ExpectRefused(WideOf(file.Path()), Replaced(path, "模型", "??"));
    } else {
        ExpectImported(WideOf(file.Path()));
        ExpectRefused(WideOf(file.Path()) + Wide("x"), path + "x");
    }
}

// Windows takes the letter that looks most like it, and so finds another file.
TEST(Paths, LookalikeInTheCodePageIsTakenOnWindows)
{
    const NamedFile file("-portique O.txt");
    const WideString path = Wide(Replaced(Utf8Of(file.Path()), "portique O", "portique Ω"));
    if (kIsWindows) {
        ExpectImported(path);
    } else {
        ExpectRefused(path, Utf8(WideStringView(path)));
    }
}

TEST(Paths, HalfASurrogatePairIsAQuestionMark)
{
    ExpectRefused(Wide("no-such-") + OLECHAR{0xD83D} + Wide(".txt"), "no-such-?.txt");
}

TEST(Paths, BlanksAreFine)
{
    ExpectImported(WideOf(NamedFile(" - deux  blancs .txt").Path()));
}

TEST(Paths, BlanksAndPointsAtTheEndCountButOnWindows)
{
    const NamedFile file(".txt");
    for (const char* end : {" ", "  ", ".", ". ."}) {
        const WideString path = WideOf(file.Path()) + Wide(end);
        if (kIsWindows) {
            ExpectImported(path);
        } else {
            ExpectRefused(path, Utf8(WideStringView(path)));
        }
    }
}

TEST(Paths, PercentSignsAreShownAsTheyStand)
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

TEST(Paths, LongerThan260CharactersIsRefusedOnWindows)
{
    const LongPathFile file;
    ASSERT_GT(WideOf(file.Path()).size(), 260u);
    if (kIsWindows) {
        ExpectRefused(file.Path());
    } else {
        ExpectImported(WideOf(file.Path()));
    }
}

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

TEST(Paths, DeviceIsRefused)
{
    ExpectRefused(std::filesystem::path(kDevice));
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
