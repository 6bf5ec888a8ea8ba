// Lines are cut after 49999 characters; what is left over is a line of its own in every respect.
#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

using namespace std::string_literals;

constexpr std::size_t kLongestLine = 49999;

std::string Padded(std::string text, std::size_t length)
{
    text.resize(length, ' ');
    return text;
}

// A material whose line fills a read to the last character.
const std::string kFullLine = Padded("A 1", kLongestLine);

ComPtr<ITAMURStructureReader> ImportedText(const std::string& lines)
{
    return Imported(ModelText().Raw("#Materiaux\n").Raw(lines));
}

TEST(LongLines, RemainderIsALineOfItsOwn)
{
    const auto reader = ImportedText(Padded(kFullLine + "B 2", 60000) + "\nC 3\n");
    EXPECT_EQ(MaterialNames(*reader), (Names{"A", "B", "C"}));
    EXPECT_EQ(Materials(*reader).At(1)->E, 2.0);
}

TEST(LongLines, AreCutAsOftenAsNeeded)
{
    const auto reader = ImportedText(kFullLine + Padded("B 2", kLongestLine) +
                                     Padded("C 3", kLongestLine) + "D 4\nE 5\n");
    EXPECT_EQ(MaterialNames(*reader), (Names{"A", "B", "C", "D", "E"}));
}

TEST(LongLines, NumberAcrossTheCutFallsInTwo)
{
    const auto reader = ImportedText(Padded("A", kLongestLine - 2) + "1234 5\n");
    ASSERT_EQ(MaterialNames(*reader), (Names{"A", "34"}));
    EXPECT_EQ(Materials(*reader).At(0)->E, 12.0);
    EXPECT_EQ(Materials(*reader).At(1)->E, 5.0);
}

// The line end does not count: after a full line it is an empty line, which nobody notices.
TEST(LongLines, LimitLiesBetween49999And50000Characters)
{
    for (const std::string end : {"\n", "\r\n", ""}) {
        const auto names = [&](std::size_t length) {
            return MaterialNames(*ImportedText(Padded("A 1", length) + end));
        };
        EXPECT_EQ(names(49998), (Names{"A"}));
        EXPECT_EQ(names(49999), (Names{"A"}));
        EXPECT_EQ(names(50000), (Names{"A", ""}));
    }
}

TEST(LongLines, CharactersAfterANulCount)
{
    const auto reader = ImportedText(Padded("A 1\0"s, kLongestLine) + "B 2\n");
    EXPECT_EQ(MaterialNames(*reader), (Names{"A", "B"}));
}

TEST(LongLines, RemainderMayBeAHeader)
{
    const auto reader = ImportedText(kFullLine + "#Attaches\nR1 7\n#Attaches\nR2 7\n");
    EXPECT_EQ(MaterialNames(*reader), (Names{"A"}));
    EXPECT_EQ(ReleaseNames(*reader), (Names{"R1"})) << "and is the first of its name";
}

TEST(LongLines, RemainderOfALineThatNobodyReadsMayBeAHeader)
{
    const auto reader =
        Imported(ModelText().Raw(Padded("before any section", kLongestLine) + "#Materiaux\nB 2\n"));
    EXPECT_EQ(MaterialNames(*reader), (Names{"B"}));
}

TEST(LongLines, RemainderThatStartsWithANumberSignEndsTheSection)
{
    EXPECT_EQ(MaterialNames(*ImportedText(kFullLine + "# note\nB 2\n")), (Names{"A"}));
}

TEST(LongLines, NumberSignBeforeTheCutEndsNothing)
{
    const auto reader = ImportedText(Padded("A 1", kLongestLine - 1) + "#Attaches\nB 2\n");
    EXPECT_EQ(MaterialNames(*reader), (Names{"A", "Attaches", "B"}));
    EXPECT_EQ(Attaches(*reader).Size(), 0);
}

TEST(LongLines, ElementsAreCutLikeAllOthers)
{
    const auto reader =
        Imported(ModelText().Raw("#Elements\n" + Padded("1 1 0 1 0 0 0 0 0 0 0 0", kLongestLine) +
                                 "1 2 0 1 0 0 0 0 0 0 0 0\n"));
    ASSERT_EQ(Nodes(*reader).Size(), 2);
    EXPECT_EQ(Nodes(*reader).At(1)->identifier, 2);
}

TEST(LongLines, VersionLineMayBeLong)
{
    EXPECT_EQ(ImportText(*NewReader(), ModelText("12.1" + std::string(300, ' '))), S_OK);
    EXPECT_EQ(ImportText(*NewReader(), ModelText("12.1" + std::string(60000, 'x'))), S_OK);
}

}  // namespace
}  // namespace tamur::test
