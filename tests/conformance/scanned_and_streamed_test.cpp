// Groups, releases and materials are scanned, lines of sections are extracted like a stream. The
// two agree on well-formed columns and differ on bad ones.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/model_text.h"

namespace tamur::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The same column as the modulus of a material, which is scanned, and as the first constant of a
// section, which is streamed. A second column after it, 7, shows whether the line is read on.
struct RealColumn {
    double value;
    double after;
};

RealColumn Scanned(const std::string& column)
{
    const auto reader = Imported(ModelText().Section("#Materiaux", {"A " + column + " 7"}));
    const auto material = Materials(*reader).At(0);
    return {material->E, material->nu};
}

RealColumn Streamed(const std::string& column)
{
    const auto reader = Imported(ModelText().Section("#Geometries", {"A " + column + " 7"}));
    const auto section = Sections(*reader).At(0);
    return {section->Sx, section->Sy};
}

void ExpectColumn(const RealColumn& column, const RealColumn& expected)
{
    EXPECT_EQ(column.value, expected.value);
    EXPECT_EQ(column.after, expected.after);
}

TEST(RealColumns, ReadTheSameBothWaysWhenWellFormed)
{
    const struct {
        const char* text;
        double value;
    } kCases[] = {{"1", 1},
                  {"+1.5", 1.5},
                  {"-2.5e3", -2500},
                  {".5", 0.5},
                  {"5.", 5},
                  {"1E-2", 0.01},
                  {"007", 7},
                  {"1e+2", 100},
                  {"-0.0", 0.0},
                  {"1e-999", 0},
                  {"123456789012345678", 123456789012345678.0}};
    for (const auto& each : kCases) {
        SCOPED_TRACE(each.text);
        ExpectColumn(Scanned(each.text), {each.value, 7});
        ExpectColumn(Streamed(each.text), {each.value, 7});
    }
}

TEST(RealColumns, EndAtTheFirstCharacterThatCannotContinueThemBothWays)
{
    const struct {
        const char* text;
        RealColumn expected;
    } kCases[] = {
        {"3abc", {3, 0}},      // the rest of the word is the next column, and no number
        {"1,5", {1, 0}},       //
        {"1.2.3", {1.2, .3}},  // here it is one
        {"1-2", {1, -2}},      //
        {"abc", {0, 0}},       //
        {"-", {0, 0}},         //
        {".", {0, 0}},         //
    };
    for (const auto& each : kCases) {
        SCOPED_TRACE(each.text);
        ExpectColumn(Scanned(each.text), each.expected);
        ExpectColumn(Streamed(each.text), each.expected);
    }
}

TEST(RealColumns, BeyondTheRangeAreInfiniteWhenScannedAndAnErrorWhenStreamed)
{
    ExpectColumn(Scanned("1e999"), {kInfinity, 7});
    ExpectColumn(Scanned("-1e999"), {-kInfinity, 7});
    ExpectColumn(Streamed("1e999"), {0, 0});
    ExpectColumn(Streamed("-1e999"), {0, 0});
}

TEST(RealColumns, HexadecimalAndNamedNumbersAreOnlyScanned)
{
    ExpectColumn(Scanned("0x10"), {16, 7});
    ExpectColumn(Streamed("0x10"), {0, 0});  // a 0, and a column that is none
    ExpectColumn(Scanned("inf"), {kInfinity, 7});
    ExpectColumn(Streamed("inf"), {0, 0});
    EXPECT_TRUE(std::isnan(Scanned("nan").value));
    EXPECT_EQ(Scanned("nan").after, 7);
    ExpectColumn(Streamed("nan"), {0, 0});
}

// ------------------------------------------------------------------ integers

TEST(IntegerColumns, BeyondTheRangeAreClampedWhenScanned)
{
    for (const auto& [text, value] :
         {std::pair{"99999999999", 2147483647}, std::pair{"-99999999999", -2147483647 - 1},
          std::pair{"99999999999999999999999", 2147483647}, std::pair{"2147483647", 2147483647},
          std::pair{"2147483648", 2147483647}}) {
        SCOPED_TRACE(text);
        const std::string number = text;
        const auto reader = Imported(ModelText()
                                         .Section("#Groupes", {"2 " + number + " 3 Titre Oui"})
                                         .Section("#Attaches", {"R " + number + " T G D"}));
        const auto group = Groupes(*reader).At(0);
        EXPECT_EQ(group->Num, value);
        EXPECT_EQ(group->TypEl, 3);
        EXPECT_EQ(Utf8(group->Titre), "Titre") << "the line is read on";
        EXPECT_EQ(group->Affiche, 1);
        const auto release = Attaches(*reader).At(0);
        EXPECT_EQ(release->Rotules, static_cast<unsigned char>(value));
        EXPECT_EQ(Utf8(release->Titre), "T") << "the line is read on";
    }
}

// The outline of a section line with those tokens after the constants.
Record<TMRSectionGeometry> Outline(const std::string& tokens)
{
    const auto reader =
        Imported(ModelText().Section("#Geometries", {"A 1 2 3 4 5 6 7 8 9 10 11 " + tokens}));
    return Sections(*reader).At(0);
}

TEST(IntegerColumns, BeyondTheRangeAreAnErrorWhenStreamed)
{
    for (const char* number : {"99999999999", "-99999999999", "2147483648"}) {
        SCOPED_TRACE(number);
        const auto section = Outline(number + std::string(" C 0.5"));
        EXPECT_EQ(section->epureSec.nbPoints, 0);
        EXPECT_EQ(section->epureSec.Code, 'F') << "the line is not read on";
        EXPECT_EQ(section->epureSec.dfRadius, 0.0);
    }
}

// Both take 3.5 for 3. What is left, ".5", is no integer for the scan, but it is a character
// and a number for the stream.
TEST(IntegerColumns, WrittenAsRealsGoDifferentWays)
{
    const auto reader = Imported(ModelText().Section("#Groupes", {"2 3.5 1 Titre Oui"}));
    const auto group = Groupes(*reader).At(0);
    EXPECT_EQ(group->Elem, 2);
    EXPECT_EQ(group->Num, 3);
    EXPECT_EQ(group->TypEl, 0);
    EXPECT_EQ(Utf8(group->TypeElementName), "");
    EXPECT_EQ(Utf8(group->Titre), "-");
    EXPECT_EQ(group->Affiche, 0);

    const auto section = Outline("1.5 6 7");
    EXPECT_EQ(section->epureSec.Code, '.');
    ASSERT_EQ(section->epureSec.nbPoints, 1);
    EXPECT_EQ(section->epureSec.pTabPoints[0], 5.0);
    EXPECT_EQ(section->epureSec.pTabPoints[1], 6.0);
}

TEST(BadColumns, StopAScanWithTheColumnsAfterItAtTheirStartValues)
{
    const auto reader = Imported(ModelText()
                                     .Section("#Groupes", {"2 x 1 Titre Oui", "x 3 1 Titre Oui",
                                                           "2 3 x Titre Oui", "2 3 1Titre Oui"})
                                     .Section("#Attaches", {"R x T G D"}));
    const auto groups = Groupes(*reader);
    const struct {
        int kind, number, type;
        const char* title;
    } kExpected[] = {{2, 0, 0, "-"}, {0, 0, 0, "-"}, {2, 3, 0, "-"}, {2, 3, 1, "Titre"}};
    for (LONG rank = 0; rank < 4; ++rank) {
        SCOPED_TRACE(rank);
        const auto& expected = kExpected[rank];
        EXPECT_EQ(groups.At(rank)->Elem, expected.kind);
        EXPECT_EQ(groups.At(rank)->Num, expected.number);
        EXPECT_EQ(groups.At(rank)->TypEl, expected.type);
        EXPECT_EQ(Utf8(groups.At(rank)->Titre), expected.title);
    }
    const auto release = Attaches(*reader).At(0);
    EXPECT_EQ(Utf8(release->AttacheLib), "R");
    EXPECT_EQ(release->Rotules, 0);
    EXPECT_EQ(Utf8(release->Def), "");
}

TEST(BadColumns, StopAStreamWithTheTokensAfterItAtTheirStartValues)
{
    const auto section = Outline("x C 0.5");
    EXPECT_EQ(section->V2z, 11.0);
    EXPECT_EQ(section->epureSec.nbPoints, 0);
    EXPECT_EQ(section->epureSec.Code, 'F') << "which the start value is";
    EXPECT_EQ(section->epureSec.dfRadius, 0.0);
}

// An exponent without digits is swallowed by the stream and makes the whole number bad.
TEST(BadColumns, UnfinishedExponentIsAnErrorWhenStreamed)
{
    for (const char* text : {"1e", "1e+", "1E-"}) {
        SCOPED_TRACE(text);
        ExpectColumn(Streamed(text), {0, 0});
    }
}

}  // namespace
}  // namespace tamur::test
