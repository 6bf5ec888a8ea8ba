#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

ComPtr<ITAMURStructureReader> ImportedReleases(const std::vector<std::string>& lines)
{
    return Imported(ModelText().Section("#Attaches", lines));
}

struct Expected {
    std::string name;
    int rotations;
    std::string title, geometry, definition;
};

// What a line gives.
void ExpectRelease(const std::string& line, const Expected& expected)
{
    SCOPED_TRACE(line);
    const auto reader = ImportedReleases({line});
    ASSERT_EQ(Attaches(*reader).Size(), 1);
    const auto release = Attaches(*reader).At(0);
    EXPECT_EQ(Utf8(release->AttacheLib), expected.name);
    EXPECT_EQ(release->Rotules, expected.rotations);
    EXPECT_EQ(Utf8(release->Titre), expected.title);
    EXPECT_EQ(Utf8(release->Geom), expected.geometry);
    EXPECT_EQ(Utf8(release->Def), expected.definition);
}

TEST(Releases, FileWithoutTheSectionHasNone)
{
    const auto reader = Imported(ModelText().Elements({"1 7 0 1 0 0 0 0 0 0 0 0"}));
    EXPECT_EQ(Attaches(*reader).Size(), 0);
    EXPECT_EQ(Nodes(*reader).Size(), 1) << "and the import goes on";
    EXPECT_EQ(Attaches(*ImportedReleases({})).Size(), 0);
}

TEST(Releases, ColumnsFillTheFields)
{
    ExpectRelease("ART1 7 Rotule A B", {"ART1", ROTULE, "Rotule", "A", "B"});
}

TEST(Releases, MissingTextsAreEmpty)
{
    ExpectRelease("E0 0", {"E0", ENCASTREMENT, "", "", ""});
    ExpectRelease("E0 4 T", {"E0", ROTULE_Z, "T", "", ""});
    ExpectRelease("E0", {"E0", ENCASTREMENT, "", "", ""});
    ExpectRelease(" ", {"", ENCASTREMENT, "", "", ""});
}

TEST(Releases, MissingTextsAreStringsAllTheSame)
{
    const auto release = Attaches(*ImportedReleases({"E0 0"})).At(0);
    EXPECT_NE(release->Titre, nullptr);
    EXPECT_NE(release->Geom, nullptr);
    EXPECT_NE(release->Def, nullptr);
}

TEST(Releases, EveryCodeReachesTheHost)
{
    for (int code = 0; code <= 15; ++code) {
        ExpectRelease("R " + std::to_string(code) + " T", {"R", code, "T", "", ""});
    }
}

TEST(Releases, HostsSeeTheLowEightBitsOfTheCode)
{
    ExpectRelease("R 300 T", {"R", 44, "T", "", ""});
    ExpectRelease("R 255 T", {"R", 255, "T", "", ""});
    ExpectRelease("R 256 T", {"R", 0, "T", "", ""});
    ExpectRelease("R -1 T", {"R", 255, "T", "", ""});
    ExpectRelease("R -300 T", {"R", 212, "T", "", ""});
}

TEST(Releases, LineWithoutACodeIsRigidAndHasNoTexts)
{
    const auto reader = ImportedReleases({"R1 7 T G D", "R2 x T G D", "R3"});
    ASSERT_EQ(ReleaseNames(*reader), (Names{"R1", "R2", "R3"}));
    for (LONG rank = 1; rank <= 2; ++rank) {
        const auto release = Attaches(*reader).At(rank);
        EXPECT_EQ(release->Rotules, ENCASTREMENT) << "nothing is kept from the line before";
        EXPECT_EQ(Utf8(release->Titre), "");
        EXPECT_EQ(Utf8(release->Geom), "");
        EXPECT_EQ(Utf8(release->Def), "");
    }
}

TEST(Releases, KeepTheOrderOfTheFileAndEqualNames)
{
    EXPECT_EQ(ReleaseNames(*ImportedReleases({"B 1", "", "A 2", "B 3"})), (Names{"B", "A", "B"}));
}

TEST(Releases, TextsAreInTheAnsiCodePage)
{
    ExpectRelease("\xC0 1 \xE9t\xE9 \x9C \x80", {"À", ROTULE_X, "été", "œ", "€"});
}

TEST(Releases, UnderscoreIsAnOrdinaryCharacter)
{
    ExpectRelease("a_b 1 - _ c_d", {"a_b", ROTULE_X, "-", "_", "c_d"});
}

TEST(Releases, WhatFollowsTheFifthColumnIsIgnored)
{
    ExpectRelease("R 1 T G D X Y", {"R", ROTULE_X, "T", "G", "D"});
}

// A text of more than 255 characters is cut; the rest is taken for the next column.
TEST(Releases, LongTextsAreCut)
{
    const std::string longest(255, 'x');
    ExpectRelease("R 1 " + longest + " G D", {"R", ROTULE_X, longest, "G", "D"});
    ExpectRelease("R 1 " + longest + "yz G D", {"R", ROTULE_X, longest, "yz", "G"});
    ExpectRelease("R 1 T G " + longest + "yz", {"R", ROTULE_X, "T", "G", longest});
    ExpectRelease(longest + "3 T G D", {longest, ROTULE_XY, "T", "G", "D"});
    ExpectRelease(longest + "x 3 T G D", {longest, ENCASTREMENT, "", "", ""});
}

}  // namespace
}  // namespace tamur::test
