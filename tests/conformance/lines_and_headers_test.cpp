// How a model file falls into lines and sections, seen through the tables that come out.
#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

using namespace std::string_literals;

const std::string kConcrete = "BETON";  // the material of a file that defines none

Names MaterialNamesOf(std::string_view afterSettings)
{
    return MaterialNames(*Imported(ModelText().Raw(afterSettings)));
}

std::string WithCarriageReturns(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '\n') out += '\r';
        out += c;
    }
    return out;
}

// ------------------------------------------------------------------ line ends

TEST(LineEnds, CarriageReturnPlusLineFeedReadsAsLineFeed)
{
    const std::string text = ModelText()
                                 .Section("#Materiaux", {"C25 3e10", "", "C30 3.3e10"})
                                 .Section("#Attaches", {"R1 7"})
                                 .Elements({"1 7 0 1 0 1.5 2.5 0 0 0 0 3"})
                                 .Text();
    const auto reader = Imported(WithCarriageReturns(text));
    EXPECT_EQ(MaterialNames(*reader), (Names{"C25", "C30"}));
    EXPECT_EQ(ReleaseNames(*reader), (Names{"R1"}));
    EXPECT_EQ(Nodes(*reader).Size(), 1);
}

TEST(LineEnds, BothKindsMayBeMixed)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\r\nA 1\nB 2\r\n\r\n\nC 3\n"), (Names{"A", "B", "C"}));
}

// A lone carriage return is white space between columns, not a line end.
TEST(LineEnds, LoneCarriageReturnStaysInItsLine)
{
    const auto reader = Imported(ModelText().Raw("#Materiaux\nA 1\r0.2\rB 3\n"));
    const auto materials = Materials(*reader);
    ASSERT_EQ(materials.Size(), 1);
    EXPECT_EQ(materials.At(0)->E, 1.0);
    EXPECT_EQ(materials.At(0)->nu, 0.2);
    EXPECT_EQ(materials.At(0)->d, 0.0);
}

TEST(LineEnds, OnlyOneCarriageReturnGoesWithTheLineFeed)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\r\r\nA 1\n"), (Names{kConcrete}))
        << "the header line is one carriage return too long";
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n\r\r\nB 2\n"), (Names{"A", "", "B"}))
        << "a line with a carriage return in it is not empty";
}

TEST(LineEnds, CarriageReturnAtTheEndOfTheFileIsAnOrdinaryCharacter)
{
    EXPECT_EQ(ImportText(*NewReader(), "#Version\n12.1\n#Tolerance\n1\n#Rigide\n1\n#Espace\r"),
              E_FAIL);
}

TEST(LineEnds, LastLineNeedsNone)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\nB 2"), (Names{"A", "B"}));
}

TEST(CtrlZ, EndsTheFileInTheMiddleOfALine)
{
    const auto reader = Imported(ModelText().Raw("#Materiaux\nA 1\nB 2\x1A 0.3\nC 3\n"));
    EXPECT_EQ(MaterialNames(*reader), (Names{"A", "B"}));
    EXPECT_EQ(Materials(*reader).At(1)->E, 2.0);
    EXPECT_EQ(Materials(*reader).At(1)->nu, 0.0);
}

TEST(CtrlZ, HidesTheSectionsAfterIt)
{
    EXPECT_EQ(MaterialNamesOf("\x1A\n#Materiaux\nA 1\n"), (Names{kConcrete}));
    EXPECT_EQ(
        ImportText(*NewReader(), "#Version\n12.1\n#Espace\n2\n#Tolerance\n1\n\x1A#Rigide\n1\n"),
        E_FAIL);
}

TEST(CtrlZ, EndsAHeaderLikeTheEndOfTheFile)
{
    EXPECT_EQ(ImportText(*NewReader(), "#Version\n12.1\n#Tolerance\n1\n#Rigide\n1\n#Espace\x1A"),
              S_OK);
}

// A NUL ends the text of its line for every reader; the line itself goes on to its line feed.
TEST(NulCharacter, HidesTheRestOfItsLine)
{
    const auto reader = Imported(ModelText().Raw("#Materiaux\nA 1\0 0.2\nB 2 0.3\n"s));
    EXPECT_EQ(MaterialNames(*reader), (Names{"A", "B"}));
    EXPECT_EQ(Materials(*reader).At(0)->nu, 0.0);
    EXPECT_EQ(Materials(*reader).At(1)->nu, 0.3);
}

TEST(NulCharacter, MakesALineThatItStartsEmpty)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n\0#end\nB 2\n"s), (Names{"A", "B"}));
}

TEST(NulCharacter, EndsAHeader)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\0 of the hall\nA 1\n"s), (Names{"A"}));
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n#\0\nB 2\n"s), (Names{"A"}));
}

// ------------------------------------------------------------------ headers

TEST(Headers, MustMatchTheWholeLineExactly)
{
    for (const std::string header :
         {"#Materiaux ", " #Materiaux", "#Materiaux\t", "#materiaux", "#MATERIAUX", "#Materiau",
          "#Materiauxx", "Materiaux", "##Materiaux", "#Mat\xE9riaux", "#Mat\xC3\xA9riaux"}) {
        EXPECT_EQ(MaterialNamesOf(header + "\nA 1\n"), (Names{kConcrete})) << header;
    }
}

TEST(Headers, FirstOfSeveralSectionsIsTheOneRead)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n#Autre\n#Materiaux\nB 2\n"), (Names{"A"}));
}

TEST(Headers, AccentedSpellingOfCodePage850IsReadLikeThePlainOne)
{
    const auto reader = Imported(ModelText()
                                     .Section("#Mat\x82riaux", {"A 1"})
                                     .Section("#G\x82om\x82tries", {"R1 1"})
                                     .Section("#El\x82ments", {"1 7 0 1 0 0 0 0 0 0 0 0"}));
    EXPECT_EQ(MaterialNames(*reader), (Names{"A"}));
    EXPECT_EQ(SectionNames(*reader), (Names{"R1"}));
    EXPECT_EQ(Nodes(*reader).Size(), 1);
}

TEST(Headers, HalfAccentedSpellingsAreUnknown)
{
    const auto reader = Imported(ModelText()
                                     .Section("#G\x82ometries", {"R1 1"})
                                     .Section("#Geom\x82tries", {"R2 1"})
                                     .Section("#\x82l\x82ments", {"1 7 0 1 0 0 0 0 0 0 0 0"}));
    EXPECT_EQ(SectionNames(*reader), (Names{"R20*30"}));
    EXPECT_EQ(Nodes(*reader).Size(), 0);
}

TEST(Headers, PlainSpellingGoesBeforeAnEarlierAccentedOne)
{
    const auto reader = Imported(ModelText()
                                     .Section("#Mat\x82riaux", {"A 1"})
                                     .Section("#G\x82om\x82tries", {"R1 1"})
                                     .Section("#El\x82ments", {"1 7 0 1 0 0 0 0 0 0 0 0"})
                                     .Section("#Materiaux", {"B 2"})
                                     .Section("#Geometries", {"R2 1"})
                                     .Section("#Elements", {}));
    EXPECT_EQ(MaterialNames(*reader), (Names{"B"}));
    EXPECT_EQ(SectionNames(*reader), (Names{"R2"}));
    EXPECT_EQ(Nodes(*reader).Size(), 0);
}

TEST(Headers, AnyLineWithANumberSignEndsASection)
{
    for (const std::string line : {"#", "# note", "#Materiaux ", "#Materiaux", "#Elements"}) {
        EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n" + line + "\nB 2\n"), (Names{"A"})) << line;
    }
}

TEST(Headers, NumberSignAfterABlankIsData)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n #Attaches\nB 2\n"),
              (Names{"A", "#Attaches", "B"}));
}

TEST(Headers, EmptyLinesAreSkippedAndEndNothing)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\n\n\nA 1\n\nB 2\n\n"), (Names{"A", "B"}));
}

TEST(Headers, BlanksAloneAreADataLine)
{
    EXPECT_EQ(MaterialNamesOf("#Materiaux\nA 1\n  \nB 2\n"), (Names{"A", "", "B"}));
}

TEST(Headers, LastLineWithoutLineFeedIsFound)
{
    const auto reader = Imported("#Version\n12.1\n#Tolerance\n0.5\n#Rigide\n1\n#Espace");
    TMRStructureData data = {};
    ASSERT_EQ(reader->GetStructureGlobalData(&data), S_OK);
    EXPECT_EQ(data.espaceDeTravail, TMRWS_PLAN) << "no value after it counts as 0";
}

TEST(Headers, EveryTableCopesWithItsHeaderAsTheLastLine)
{
    const ModelText settings;
    const auto imported = [&](const char* header) {
        return Imported(ModelText(settings).Raw(header));
    };
    EXPECT_EQ(MaterialNames(*imported("#Materiaux")), (Names{kConcrete}));
    EXPECT_EQ(SectionNames(*imported("#Geometries")), (Names{"R20*30"}));
    EXPECT_EQ(ReleaseNames(*imported("#Attaches")), Names{});
    EXPECT_EQ(GroupTitles(*imported("#Groupes")), Names{});
    EXPECT_EQ(Nodes(*imported("#Elements")).Size(), 0);
}

}  // namespace
}  // namespace tamur::test
