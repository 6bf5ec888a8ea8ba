#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include "conformance/load_model.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Case {
    int number;
    int type;
    std::string title;
    std::string code;

    bool operator==(const Case&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Case& loadCase)
    {
        return out << loadCase.number << ' ' << loadCase.title << ' ' << loadCase.type << ' '
                   << loadCase.code;
    }
};

std::vector<Case> CasesOf(ITAMURStructureReader& reader)
{
    std::vector<Case> cases;
    for (const auto& record : Cas(reader)) {
        cases.push_back({record->Num, record->Type, Utf8(record->Titre), Utf8(record->Code)});
    }
    return cases;
}

std::vector<Case> CasesOf(const ModelText& model)
{
    return CasesOf(*Imported(model));
}

std::vector<Case> CasesOfLines(const std::vector<std::string>& lines)
{
    return CasesOf(ModelText().Section("#Cas", lines));
}

TEST(LoadCases, LineGivesNumberTitleTypeAndCode)
{
    EXPECT_THAT(CasesOfLines({"1 G 1 G 0", "7 Comb1 2 ELU 0"}),
                ElementsAre(Case{1, 1, "G", "G"}, Case{7, 2, "Comb1", "ELU"}));
}

TEST(LoadCases, FileWithoutTheSectionHasNone)
{
    EXPECT_THAT(CasesOf(ModelText()), IsEmpty());
}

TEST(LoadCases, EmptySectionHasNone)
{
    EXPECT_THAT(CasesOfLines({}), IsEmpty());
    EXPECT_THAT(CasesOf(ModelText().Raw("#Cas")), IsEmpty());
}

TEST(LoadCases, OnlyFiveTypesAreAccepted)
{
    std::vector<std::string> lines;
    for (int type = -3; type <= 20; ++type) {
        lines.push_back(std::to_string(100 + type) + " T " + std::to_string(type) + " C 0");
    }
    EXPECT_THAT(CasesOfLines(lines),
                ElementsAre(Case{101, 1, "T", "C"}, Case{102, 2, "T", "C"}, Case{103, 3, "T", "C"},
                            Case{104, 4, "T", "C"}, Case{109, 9, "T", "C"}));
}

TEST(LoadCases, TypeCountsByItsLowEightBits)
{
    EXPECT_THAT(CasesOfLines({"1 A 257 a 0", "2 B 256 b 0", "3 C -255 c 0", "4 D 265 d 0",
                              "5 E 65540 e 0", "6 F 511 f 0"}),
                ElementsAre(Case{1, 1, "A", "a"}, Case{3, 1, "C", "c"}, Case{4, 9, "D", "d"},
                            Case{5, 4, "E", "e"}));
}

TEST(LoadCases, LineWithoutAnAcceptedTypeIsDropped)
{
    EXPECT_THAT(CasesOfLines({"5 Vent 6 W 0", "5 Vent", "5", "x G 1 G 0", "- G 1 G 0", "   "}),
                IsEmpty());
}

TEST(LoadCases, TitleIsOneWordSoASecondWordStandsInTheTypeColumn)
{
    EXPECT_THAT(CasesOfLines({"5 Vent nord 1 W 0", "6 Vent 2 1 W 0"}),
                ElementsAre(Case{6, 2, "Vent", "1"}));
}

TEST(LoadCases, CodeAndLastColumnMayBeMissingOrUnreadable)
{
    EXPECT_THAT(CasesOfLines({"1 G 1", "2 G 1 C", "3 G 1 C x", "4 G 1 C 7 8 9", "5 G 1x 0"}),
                ElementsAre(Case{1, 1, "G", ""}, Case{2, 1, "G", "C"}, Case{3, 1, "G", "C"},
                            Case{4, 1, "G", "C"}, Case{5, 1, "G", "x"}));
}

TEST(LoadCases, ColumnsAreSeparatedByAnyBlanks)
{
    EXPECT_THAT(CasesOfLines({"  1\tG \t 1   G\t0"}), ElementsAre(Case{1, 1, "G", "G"}));
}

TEST(LoadCases, NumberEndsAtTheFirstCharacterThatCannotContinueIt)
{
    EXPECT_THAT(CasesOfLines({"12abc 1 G 0", "+4 P 1 G 0", "-3 M 1 G 0", "007 Z 1 G 0"}),
                ElementsAre(Case{12, 1, "abc", "G"}, Case{4, 1, "P", "G"}, Case{-3, 1, "M", "G"},
                            Case{7, 1, "Z", "G"}));
}

TEST(LoadCases, NumbersBeyond32BitsAreClamped)
{
    EXPECT_THAT(
        CasesOfLines({"99999999999 G 1 G 0", "-99999999999 G 1 G 0", "3 G 4294967297 G 0",
                      "4 G 1 G 99999999999"}),
        ElementsAre(Case{std::numeric_limits<int>::max(), 1, "G", "G"},
                    Case{std::numeric_limits<int>::min(), 1, "G", "G"}, Case{4, 1, "G", "G"}));
}

TEST(LoadCases, WordsAreCutAfter255Characters)
{
    const std::string title(255, 't');
    const std::string code(255, 'c');
    EXPECT_THAT(CasesOfLines({"1 " + title + " 1 " + code + " 0",
                              "2 " + title + "1 " + code + "c 0", "3 " + title + "t 1 G 0"}),
                ElementsAre(Case{1, 1, title, code}, Case{2, 1, title, code}));
}

TEST(LoadCases, TextIsInTheAnsiCodePage)
{
    EXPECT_THAT(CasesOfLines({"1 \xC9t\xE9 1 \x80 0"}), ElementsAre(Case{1, 1, "Été", "€"}));
}

TEST(LoadCases, RepeatedNumbersAreKept)
{
    EXPECT_THAT(CasesOfLines({"3 A 1 a 0", "3 B 9 b 0"}),
                ElementsAre(Case{3, 1, "A", "a"}, Case{3, 9, "B", "b"}));
}

TEST(LoadCases, SectionEndsAtTheNextHeaderAndOnlyTheFirstIsRead)
{
    EXPECT_THAT(CasesOf(ModelText()
                            .Section("#Cas", {"1 G 1 G 0", "", "2 Q 1 Q 0"})
                            .Section("#", {"3 R 1 R 0"})
                            .Section("#Cas", {"4 S 1 S 0"})),
                ElementsAre(Case{1, 1, "G", "G"}, Case{2, 1, "Q", "Q"}));
}

TEST(LoadCases, NumberSignAfterABlankDoesNotEndTheSection)
{
    EXPECT_THAT(CasesOfLines({"1 G 1 G 0", " #Elements", "2 Q 1 Q 0"}),
                ElementsAre(Case{1, 1, "G", "G"}, Case{2, 1, "Q", "Q"}));
}

TEST(LoadCases, LastLineNeedsNoLineEnd)
{
    EXPECT_THAT(CasesOf(ModelText().Raw("#Cas\n1 G 1 G 0")), ElementsAre(Case{1, 1, "G", "G"}));
}

TEST(LoadCases, SecondImportReadsThemAfresh)
{
    const auto reader = Imported(ModelText().Section("#Cas", {"1 G 1 G 0", "2 Q 1 Q 0"}));
    ASSERT_EQ(ImportText(*reader, ModelText().Section("#Cas", {"5 V 1 V 0"})), S_OK);
    EXPECT_THAT(CasesOf(*reader), ElementsAre(Case{5, 1, "V", "V"}));
    ASSERT_EQ(ImportText(*reader, ModelText()), S_OK);
    EXPECT_THAT(CasesOf(*reader), IsEmpty());
}

}  // namespace
}  // namespace tamur::test
