#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

using Reals = std::vector<double>;

ComPtr<ITAMURStructureReader> ImportedSections(const std::vector<std::string>& lines)
{
    return Imported(ModelText().Section("#Geometries", lines));
}

// The one section that a line gives.
Record<TMRSectionGeometry> SectionOf(const std::string& line)
{
    return Sections(*ImportedSections({line})).At(0);
}

Reals Constants(const TMRSectionGeometry& s)
{
    return {s.Sx, s.Sy, s.Sz, s.Ix, s.Iy, s.Iz, s.Vx, s.V1y, s.V1z, s.V2y, s.V2z};
}

void ExpectDefaultSection(ITAMURStructureReader& reader)
{
    ASSERT_EQ(SectionNames(reader), (Names{"R20*30"}));
    const auto section = Sections(reader).At(0);
    EXPECT_EQ(Constants(*section), (Reals{0.06, 0.05, 0.05, 0.0004695, 0.00045, 0.0002, 0.002761,
                                          0.003, 0.002, 0.003, 0.002}));
    EXPECT_EQ(section->epureSec.Code, 0);
    EXPECT_EQ(section->epureSec.nbPoints, 0);
    EXPECT_NE(section->epureSec.pTabPoints, nullptr) << "hosts free a block in any case";
    EXPECT_EQ(section->epureSec.dfRadius, 0.0);
}

TEST(Sections, FileWithoutTheSectionGivesTheDefaultRectangle)
{
    ExpectDefaultSection(*Imported(ModelText()));
}

TEST(Sections, SectionWithoutALineGivesTheDefaultRectangle)
{
    ExpectDefaultSection(*ImportedSections({}));
    ExpectDefaultSection(*ImportedSections({"", ""}));
}

TEST(Sections, ColumnsFillTheConstantsInOrder)
{
    const auto section = SectionOf("R30*50 1 2 3 4 5 6 7 8 9 10 11 0 P");
    EXPECT_EQ(Utf8(section->SectionLib), "R30*50");
    EXPECT_EQ(Constants(*section), (Reals{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST(Sections, MissingConstantsAreZeroWhateverTheLineBefore)
{
    const auto reader =
        ImportedSections({"A 1 2 3 4 5 6 7 8 9 10 11 1 C 0.5 0.6 0.7", "B 21 22", "C"});
    EXPECT_EQ(SectionNames(*reader), (Names{"A", "B", "C"}));
    EXPECT_EQ(Constants(*Sections(*reader).At(1)), (Reals{21, 22, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Constants(*Sections(*reader).At(2)), Reals(11));
    EXPECT_EQ(Sections(*reader).At(2)->epureSec.Code, 'F');
    EXPECT_EQ(Sections(*reader).At(2)->epureSec.nbPoints, 0);
    EXPECT_EQ(Sections(*reader).At(2)->epureSec.dfRadius, 0.0);
}

TEST(Sections, BadConstantEndsTheLine)
{
    const auto section = SectionOf("A 1 2 x 4 5 6 7 8 9 10 11 2 S 1 2 3 4 5 6");
    EXPECT_EQ(Constants(*section), (Reals{1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(section->epureSec.nbPoints, 0);
    EXPECT_EQ(section->epureSec.Code, 'F');
}

TEST(Sections, KeepTheOrderOfTheFileAndEqualNames)
{
    EXPECT_EQ(SectionNames(*ImportedSections({"B 1", "", "A 1", "B 2"})), (Names{"B", "A", "B"}));
}

TEST(Sections, NamesAreInTheAnsiCodePage)
{
    EXPECT_EQ(SectionNames(*ImportedSections({"Carr\xE9_\x80 1"})), (Names{"Carré_€"}));
}

TEST(Sections, ShapesAreNamedByTheirDimensions)
{
    EXPECT_EQ(SectionNames(*ImportedSections({"I30*1*0.5*20", "H30*1*0.5*20", "T30*2*1*20",
                                              "T30*2*1*20*10", "I30*1*20", "R20*30", "IPE300"})),
              (Names{"I22*0.5*30*1", "I60.5*20*1*30", "T22*1*30*2", "T1*22*10*2/0*19*2/0",
                     "I30*1*20", "R20*30", "IPE300"}));
}

TEST(Sections, LongNameIsOneName)
{
    for (const std::size_t length : {254u, 255u, 256u, 257u, 300u, 40000u}) {
        const std::string name(length, 'N');
        const auto reader = ImportedSections({name + " 1 2 3 4 5 6 7 8 9 10 11 1 P 12 13"});
        EXPECT_EQ(SectionNames(*reader), (Names{name}));
        const auto section = Sections(*reader).At(0);
        EXPECT_EQ(section->Sx, 1.0) << length;
        EXPECT_EQ(section->V2z, 11.0) << length;
        ASSERT_EQ(section->epureSec.nbPoints, 1) << length;
        EXPECT_EQ(section->epureSec.pTabPoints[1], 13.0) << length;
    }
}

TEST(Sections, LongShapeNameIsRewrittenWhole)
{
    const std::string zeros(300, '0');
    EXPECT_EQ(SectionNames(*ImportedSections({"I" + zeros + "30*1*0.5*20 1"})),
              (Names{"I22*0.5*30*1"}));
}

// ------------------------------------------------------------------ outline

struct ExpectedOutline {
    char code;
    int points;
    Reals coordinates;
    double radius;
};

// The outline of a section whose line ends with those tokens, after the name and constants.
void ExpectOutline(const std::string& tokens, const ExpectedOutline& expected)
{
    SCOPED_TRACE(tokens);
    const auto section = SectionOf("P 1 2 3 4 5 6 7 8 9 10 11 " + tokens);
    const TMRSectionEpure& outline = section->epureSec;
    EXPECT_EQ(outline.Code, expected.code);
    ASSERT_EQ(outline.nbPoints, expected.points);
    ASSERT_NE(outline.pTabPoints, nullptr);
    EXPECT_EQ(Reals(outline.pTabPoints, outline.pTabPoints + expected.coordinates.size()),
              expected.coordinates);
    EXPECT_EQ(outline.dfRadius, expected.radius);
    EXPECT_EQ(section->V2z, 11.0);
}

// Those values, and zeros up to that number.
Reals BeginningWith(Reals values, std::size_t size)
{
    values.resize(size, 0.0);
    return values;
}

TEST(SectionOutline, LineThatEndsBeforeTheCodeIsAnF)
{
    ExpectOutline("", {'F', 0, {}, 0});
    ExpectOutline("0", {'F', 0, {}, 0});
    ExpectOutline("2", {'F', 2, {0, 0, 0, 0}, 0});
}

TEST(SectionOutline, CodeSHasAllPairsBeforeTheThirdValues)
{
    ExpectOutline("2 S 0 0 1 0 5 6", {'S', 2, {0, 0, 5, 1, 0, 6}, 0});
    ExpectOutline("3 S 11 12 21 22 31 32 13 23 33",
                  {'S', 3, {11, 12, 13, 21, 22, 23, 31, 32, 33}, 0});
    ExpectOutline("4 S 1 2 3 4 5 6 7 8 9 10 11 12",
                  {'S', 4, {1, 2, 9, 3, 4, 10, 5, 6, 11, 7, 8, 12}, 0});
}

TEST(SectionOutline, OtherCodesHaveTwoValuesAPoint)
{
    ExpectOutline("4 P 1 2 3 4 5 6 7 8", {'P', 4, {1, 2, 3, 4, 5, 6, 7, 8}, 0});
    ExpectOutline("1 s 1 2 3", {'s', 1, {1, 2}, 0});
}

TEST(SectionOutline, OnlyCodesCAndFHaveARadius)
{
    ExpectOutline("2 C 1 2 3 4 0.5", {'C', 2, {1, 2, 3, 4}, 0.5});
    ExpectOutline("2 F 1 2 3 4 0.5", {'F', 2, {1, 2, 3, 4}, 0.5});
    ExpectOutline("2 P 1 2 3 4 0.5", {'P', 2, {1, 2, 3, 4}, 0});
    ExpectOutline("2 c 1 2 3 4 0.5", {'c', 2, {1, 2, 3, 4}, 0});
    ExpectOutline("1 S 1 2 3 0.5", {'S', 1, {1, 2, 3}, 0});
}

TEST(SectionOutline, WithoutPointsTheRadiusFollowsTheCode)
{
    ExpectOutline("0 C 0.25", {'C', 0, {}, 0.25});
    ExpectOutline("0 F 0.25", {'F', 0, {}, 0.25});
    ExpectOutline("0 S 0.25", {'S', 0, {}, 0});
}

TEST(SectionOutline, MissingRadiusIsZero)
{
    ExpectOutline("0 C", {'C', 0, {}, 0});
    ExpectOutline("1 C 1 2 x", {'C', 1, {1, 2}, 0});
}

TEST(SectionOutline, NegativeCountIsKeptAndHasNoPoints)
{
    ExpectOutline("-1 C 0.25", {'C', -1, {}, 0.25});
    ExpectOutline("-2 F", {'F', -2, {}, 0});
    ExpectOutline("-2147483648 S 1 2 3", {'S', -2147483647 - 1, {}, 0});
}

TEST(SectionOutline, CountBeyondTheLineIsKeptAndTheMissingPointsAreZero)
{
    ExpectOutline("50 F", {'F', 50, Reals(100, 0.0), 0});
    ExpectOutline("60 S", {'S', 60, Reals(180, 0.0), 0});
    ExpectOutline("99 C 0.25", {'C', 99, BeginningWith({0.25}, 198), 0});
    ExpectOutline("49999 P 1 2 3", {'P', 49999, BeginningWith({1, 2, 3}, 99998), 0});
    ExpectOutline("49999 S 1 2 3", {'S', 49999, BeginningWith({1, 2, 0, 3}, 149997), 0});
}

// A line has 49999 characters at most, so such a number cannot be meant. What follows it is not
// read: coordinates would be taken for a radius.
TEST(SectionOutline, CountBeyondAnyLineIsNone)
{
    ExpectOutline("50000 C 0.25", {'C', 0, {}, 0});
    ExpectOutline("100000 F 1 2 3 4 0.5", {'F', 0, {}, 0});
    ExpectOutline("2147483647 S 1 2 3", {'S', 0, {}, 0});
}

TEST(SectionOutline, CoordinatesThatTheLineLacksAreZero)
{
    ExpectOutline("3 P 1 2 3", {'P', 3, {1, 2, 3, 0, 0, 0}, 0});
    ExpectOutline("2 S 1 2 3 4 5", {'S', 2, {1, 2, 5, 3, 4, 0}, 0});
    ExpectOutline("2 C 1 2 3", {'C', 2, {1, 2, 3, 0}, 0});
}

TEST(SectionOutline, BadCoordinateEndsTheLine)
{
    ExpectOutline("2 C 1 x 3 4 0.5", {'C', 2, {1, 0, 0, 0}, 0});
    ExpectOutline("2 S 1 2 3 x 5 6", {'S', 2, {1, 2, 0, 3, 0, 0}, 0});
}

TEST(SectionOutline, BadCountEndsTheLine)
{
    ExpectOutline("x S 1 2 3", {'F', 0, {}, 0});
}

// Tokens need no blank between them where one cannot continue the other.
TEST(SectionOutline, CodeMayBeGluedToItsNeighbours)
{
    ExpectOutline("2S0 0 1 0 5 6", {'S', 2, {0, 0, 5, 1, 0, 6}, 0});
    ExpectOutline("0C0.25", {'C', 0, {}, 0.25});
    ExpectOutline("1 CF 1 2 0.5", {'C', 1, {0, 0}, 0});
    ExpectOutline("3 P.1.2.3.4.5.6", {'P', 3, {0.1, 0.2, 0.3, 0.4, 0.5, 0.6}, 0});
    ExpectOutline("2 S1-2+3.4.5-6", {'S', 2, {1, -2, -6, 3.4, 0.5, 0}, 0});
}

TEST(SectionOutline, AnyCharacterServesAsTheCode)
{
    ExpectOutline("1 7 1 2 3", {'7', 1, {1, 2}, 0});
    ExpectOutline("1 12 3 4", {'1', 1, {2, 3}, 0});
    ExpectOutline("1 - 1 2 3", {'-', 1, {1, 2}, 0});
}

}  // namespace
}  // namespace tamur::test
