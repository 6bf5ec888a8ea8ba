// What is said about a file: where, in which words, and only once.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "checked_file.h"
#include "support/message_boxes.h"

namespace tamur::test {
namespace {

using namespace std::string_literals;

using testing::AllOf;
using testing::ElementsAre;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string kNode = "1 1 0 1 1 0 0 0 A 0 0 0 7";
const std::string kBar = "2 9 0 2 1 0 0 0 6 0 0 P 0 0 0 1 2 0 0 1 ";
const char* const kMaterial = "S235 2.1e11 0.3 78500 1.2e-5 0.02";

ModelText WithTables()
{
    return ModelText()
        .Section("#Materiaux", {kMaterial})
        .Section("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 0 F"})
        .Section("#Attaches", {"E 0 Encastrement - -"});
}

TEST(FileFindings, PlacesCountCharactersOfTheLine)
{
    const CheckedFile file = CheckText(WithTables().Elements({kBar + "1 7 1 1 1 5"}).Text());
    EXPECT_THAT(file.Lines(), ElementsAre("TMR221 16:43+1 bar 9: section at the start: section 7 "
                                          "does not exist; section 1 is used instead"));
}

TEST(FileFindings, AnUnreadableColumnIsNamedAndNothingElseSaidOfItsLine)
{
    const CheckedFile file = CheckText(WithTables().Elements({kBar + "x 7 9 9 9 99"}).Text());
    EXPECT_THAT(file.Lines(), ElementsAre("TMR202 16:41+1 bar 9: material cannot be read: \"x\"; "
                                          "it and all after it count as 0"));
}

TEST(FileFindings, NamesAreSpokenInBothLanguages)
{
    const CheckedFile file = CheckText(WithTables().Elements({kBar + "x"}).Text());
    ASSERT_THAT(file.findings.InFileOrder(), SizeIs(1));
    EXPECT_EQ(host::TextOf(file.findings.InFileOrder()[0], host::Language::kFrench),
              "filaire 9 : matériau est illisible : « x » ; cette valeur et toutes les suivantes "
              "comptent pour 0");
}

TEST(FileFindings, OneSectionThatIsNotThereIsSaidOnceOfABar)
{
    const CheckedFile file = CheckText(WithTables().Elements({kBar + "1 7 7 1 1 5"}).Text());
    EXPECT_THAT(file.Lines(), SizeIs(1));
}

TEST(FileFindings, BarsEndWithFiveRealsFromVersion122AOn)
{
    const std::string line = kBar + "1 1 1 1 1 5 0 0 0 0 0";
    const auto text = [&](const char* version) {
        return ModelText(version)
            .Section("#Materiaux", {kMaterial})
            .Section("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 0 F"})
            .Section("#Attaches", {"E 0 Encastrement - -"})
            .Elements({line})
            .Text();
    };
    EXPECT_THAT(CheckText(text("12.2A")).Lines(), IsEmpty());
    EXPECT_THAT(CheckText(text("12.1")).Codes(), ElementsAre("TMR226"));
}

// A label with a blank moves the columns into the ones that are not read.
TEST(FileFindings, SomeOfTheFiveRealsAreTextLeftOver)
{
    const auto linesWith = [&](const std::string& label) {
        return CheckText(ModelText("14.1E")
                             .Section("#Materiaux", {kMaterial})
                             .Section("#Geometries", {"S 1 2 3 4 5 6 7 8 9 10 11 0 F"})
                             .Section("#Attaches", {"E 0 Encastrement - -"})
                             .Elements({"2 9 0 2 1 0 0 0 6 0 0 " + label +
                                        " 0 0 0 1 2 0 0 1 1 1 1 1 1 5"})
                             .Text())
            .Codes();
    };
    EXPECT_THAT(linesWith("P"), IsEmpty());
    EXPECT_THAT(linesWith("P 2"), ElementsAre("TMR226"));
}

TEST(FileFindings, ColumnsThatMayBeMovedAreShownWhereTheyBegin)
{
    const CheckedFile file =
        CheckText(WithTables().Section("#Cas", {"2 Neige 1 1 N 0"}).Elements({kNode}).Text());
    EXPECT_THAT(
        file.Lines(),
        ElementsAre("TMR226 16:3+7 load case 2: is \"Neige 1\" one title with a blank? The "
                    "line has columns too many: \"N 0\" is left over, and all columns after "
                    "the title may be moved"));
}

TEST(FileFindings, TheColumnsOfCasesThatAreNotReadMayBeAbsent)
{
    const CheckedFile file =
        CheckText(ModelText().Section("#Cas", {"2 Neige 1 N"}).Elements({kNode}).Text());
    EXPECT_THAT(file.Lines(), IsEmpty());
}

TEST(FileFindings, LinesOfBlanksAreNoHeaders)
{
    const CheckedFile file = CheckText("  " + ModelText().Elements({kNode}).Text() + " \t");
    EXPECT_THAT(file.Codes(), ElementsAre("TMR007"));
    EXPECT_THAT(CheckText(ModelText().Elements({kNode}).Text() + "   ").Codes(),
                ElementsAre("TMR225"));
}

TEST(FileFindings, AnUnknownCodeIsSaidOnceWithTheNumberOfItsLines)
{
    const std::string support = "4 4 0 1 0 0 0 0 0 0 0 1 9 0 0 1 1 1 0 0 0 0 0 0 0 0 0 0";
    EXPECT_THAT(CheckText(ModelText().Elements({support, support}).Text()).Lines(),
                ElementsAre(AllOf(StartsWith("TMR223 10:25+1"), HasSubstr("column: 2)"))));
}

// What is lost under it makes an unknown header a warning.
TEST(FileFindings, UnknownHeadersSayHowManyLinesAreNotImported)
{
    const CheckedFile file = CheckText(
        ModelText().Elements({kNode, "# poutres", kBar, "", kBar, "#a", "#b", kBar}).Text());
    EXPECT_THAT(file.Lines(), ElementsAre(HasSubstr("(lines: 2)"), StartsWith("TMR115 15:"),
                                          HasSubstr("(lines: 1)")));
}

TEST(FileFindings, ColumnsThatAllLinesLackAreANoteAndOthersAreNot)
{
    const std::string whole = "4 4 0 1 0 0 0 0 0 0 0 1 1 0 0 1 1 1 0 0 0 0 0 0 0 0 0 0";
    const std::string shorter = whole.substr(0, whole.size() - 2);
    EXPECT_THAT(CheckText(ModelText().Elements({shorter, shorter, shorter}).Text()).Lines(),
                ElementsAre(StartsWith("TMR205 10:54+0 point support: all 3 lines")));
    EXPECT_THAT(CheckText(ModelText().Elements({shorter, whole, shorter}).Text()).Lines(),
                ElementsAre(StartsWith("TMR204 10:"), StartsWith("TMR204 12:")));
}

TEST(FileFindings, EveryLoadThatGoesWithItsCaseIsListed)
{
    const CheckedFile file =
        CheckText(ModelText()
                      .Section("#Cas", {"1 G 1 G 0", "2 Q 1 Q 0"})
                      .Elements({kNode, "8 2 0 0 0 0 0 0 1 0 0 -1 2 1",
                                 "8 3 0 0 0 0 0 0 1 0 0 -1 2 2", "8 4 0 0 0 0 0 0 2 0 0 -1 2 3",
                                 "8 5 0 0 0 0 0 0 1 0 0 -2 2 3", "8 6 0 0 0 0 0 0 1 0 0 -2 2 3"})
                      .Text());
    const std::string why =
        ": the load is not imported, and load case 1 is disabled: its loads of this kind in lines "
        "14 and 17 have other values";
    EXPECT_THAT(file.Lines(), ElementsAre("TMR315 14:0+0 self-weight load 2" + why,
                                          "TMR315 15:0+0 self-weight load 3" + why,
                                          "TMR315 17:0+0 self-weight load 5" + why,
                                          "TMR315 18:0+0 self-weight load 6" + why));
    EXPECT_EQ(file.imported.balance.Of(host::Kind::kSelfWeight).records, 1);
    EXPECT_EQ(file.imported.balance.Of(host::Kind::kCase).records, 1);
    EXPECT_EQ(file.imported.lines.At(host::Kind::kSelfWeight, 0), 16);
    EXPECT_EQ(file.imported.lines.At(host::Kind::kCase, 0), 11);
}

TEST(FileFindings, ChainsOfCombinationsLeadToTheMissingCase)
{
    const CheckedFile file =
        CheckText(ModelText()
                      .Section("#Cas", {"1 G 1 G 0", "11 A 2 A 0", "12 B 2 B 0", "13 C 2 C 0"})
                      .Section("#TAB_PARAM_CAS", {"11 2 1 1 99 1 32767 0", "12 2 11 1 32767 0",
                                                  "13 2 1 1 12 1 32767 0"})
                      .Elements({kNode})
                      .Text());
    EXPECT_THAT(file.Lines(), ElementsAre(HasSubstr("no load case 99 (11 → 99)"),
                                          HasSubstr("no load case 99 (12 → 11 → 99)"),
                                          HasSubstr("no load case 99 (13 → 12 → 11 → 99)")));
}

TEST(FileFindings, TheRestOfACutLineIsOfTheSameLine)
{
    const CheckedFile file =
        CheckText(ModelText().Elements({kNode + std::string(49999, ' ') + "1 2", "14 1"}).Text());
    EXPECT_THAT(file.Lines(), ElementsAre(StartsWith("TMR113 10:"), StartsWith("TMR201 11:")));
    EXPECT_TRUE(file.imported.balance.AddsUp());
    EXPECT_EQ(file.imported.balance.cutRests, 1);
}

TEST(FileFindings, AHeaderWithABlankBeforeItIsALineOfData)
{
    const CheckedFile file = CheckText(ModelText().Elements({kNode, " #Cas"}).Text());
    EXPECT_THAT(file.Lines(), ElementsAre(HasSubstr("\" #Cas\" must be exactly #Cas")));
}

// Nothing in a text reaches a terminal as it is.
TEST(FileFindings, HostileTextsAreShownPlainly)
{
    const CheckedFile file = CheckText(ModelText()
                                           .Section("#\x1B[2J\x07", {})
                                           .Elements({"1 1 0 1 1 0 0 0 A \x1B[31m\x9B\xFF 0 0 7"})
                                           .Text());
    EXPECT_THAT(file.Lines(),
                ElementsAre(HasSubstr("#\\u001B[2J\\u0007"), HasSubstr("\"\\u001B[31m›ÿ\"")));
}

TEST(FileFindings, ManyOfACodeAreCountedAndFewHeld)
{
    std::string text = ModelText().Text() + "#Elements\n";
    for (int i = 0; i < 5000; ++i) text += "14 1\n1 1 0 1 0 x\n#x\n#Case\n#Elements\n";
    const TemporaryFile file(text);
    host::Findings findings(10);
    (void)host::ImportFile(Utf8Path(file.Path()), findings);
    EXPECT_EQ(findings.CountOf(host::Code::kUnknownHeaderAlone), 5000);
    EXPECT_EQ(findings.CountOf(host::Code::kMisspeltHeader), 5000);
    EXPECT_EQ(findings.CountOf(host::Code::kRepeatedHeader), 5000);
    EXPECT_LE(findings.InFileOrder().size(), 50);
}

TEST(Headers, AreSuggestedForWhatIsLikeThem)
{
    for (const auto& [header, meant] : std::vector<std::pair<std::string, std::string>>{
             {"#materiaux", "#Materiaux"},
             {"#Materiaux\t", "#Materiaux"},
             {"# Materiaux", "#Materiaux"},
             {"#Mat\xE9riaux", "#Materiaux"},
             {"#Mat\xC3\xA9riaux", "#Materiaux"},
             {"#Materieux", "#Materiaux"},
             {"#G\x82ometries", "#Geometries"},
             {"#Element", "#Elements"},
             {"#ELEMENTS", "#Elements"},
             {"#Elements (12)", "#Elements"},
             {"#Groupe", "#Groupes"},
             {"#Attache", "#Attaches"},
             {"#CAS", "#Cas"},
             {"#TAB_PARAM_CASE", "#TAB_PARAM_CAS"},
         }) {
        const CheckedFile file =
            CheckText(ModelText().Elements({kNode}).Section(header, {}).Text());
        EXPECT_THAT(file.Lines(),
                    ElementsAre(HasSubstr("must be exactly " + meant + ": what follows")))
            << header;
    }
    for (const std::string header : {"#Fin", "#Options", "#S", "#Noeuds", "#"}) {
        const CheckedFile file =
            CheckText(ModelText().Elements({kNode}).Section(header, {}).Text());
        EXPECT_THAT(file.Codes(), ElementsAre("TMR115")) << header;
    }
}

// The cause is said, and not what follows from it.
TEST(Headers, AMisspeltOneIsTheOnlyFinding)
{
    const std::string text = WithTables()
                                 .Section("#Cas", {"1 G 1 G 0"})
                                 .Elements({kBar + "1 1 1 1 1 5", "8 2 0 0 0 0 0 0 1 0 0 -1 2 1"})
                                 .Text();
    for (const std::string header :
         {"#Materiaux", "#Geometries", "#Attaches", "#Cas", "#Elements"}) {
        std::string changed = text;
        changed.insert(changed.find(header) + header.size(), " ");
        EXPECT_THAT(CheckText(changed).Codes(), ElementsAre("TMR102")) << header;
    }
}

TEST(Headers, AWordIsOneWhereItsSectionIsMissing)
{
    for (const std::string word : {"Cas", "cas", " Cas", "Cas  "}) {
        const ModelText before =
            ModelText().Section("#Groupes", {"1 1 1 A Oui", word, "1 G 1 G 0"});
        const CheckedFile without = CheckText(ModelText(before).Elements({kNode}).Text());
        EXPECT_THAT(without.Lines(), ElementsAre(HasSubstr("must be exactly #Cas"))) << word;
        EXPECT_TRUE(without.imported.balance.AddsUp());
        const CheckedFile with =
            CheckText(ModelText(before).Section("#Cas", {}).Elements({kNode}).Text());
        EXPECT_THAT(with.Codes(), ElementsAre("TMR202")) << word;
    }
}

// Of a case that is not imported it is said, and not of what lacks it.
TEST(LostCases, AreTheOnlyFinding)
{
    const auto linesWith = [](const std::string& lost) {
        return CheckText(
                   ModelText()
                       .Section("#Cas", {"1 G 1 G 0", lost, "11 A 2 A 0", "12 B 2 B 0"})
                       .Section("#TAB_PARAM_CAS", {"11 2 1 1 2 1 32767 0", "12 2 11 1 32767 0"})
                       .Elements({kNode, "8 2 0 0 0 0 0 0 2 0 0 -1 2 1"})
                       .Text())
            .Lines();
    };
    EXPECT_THAT(linesWith("2 Q 1 Q 0"), IsEmpty());
    EXPECT_THAT(linesWith("2 Q 6 Q 0"), ElementsAre(StartsWith("TMR301 ")));
    EXPECT_THAT(linesWith("2 Q R 1 Q 0"), ElementsAre(StartsWith("TMR203 ")));
    EXPECT_THAT(linesWith("x Q 1 Q 0"), ElementsAre(StartsWith("TMR203 ")));
    EXPECT_THAT(linesWith("2 Q 2 1 Q 0"), ElementsAre(StartsWith("TMR226 ")));
    EXPECT_THAT(linesWith("3 Q 6 Q 0"), ElementsAre(StartsWith("TMR301 "), StartsWith("TMR304 "),
                                                    StartsWith("TMR304 "), StartsWith("TMR312 ")));
}

TEST(LostCases, DoNotExplainWhatIsWrongWithALoadItself)
{
    const CheckedFile file = CheckText(ModelText()
                                           .Section("#Cas", {"x G 1 G 0"})
                                           .Elements({kNode, "8 2 0 0 0 0 0 0 1 0 0 y 2 1"})
                                           .Text());
    EXPECT_THAT(file.Lines(), ElementsAre(StartsWith("TMR203 10:"), StartsWith("TMR203 13:")));
}

TEST(LostCases, MayBeEndedByANul)
{
    std::string lost = "2 Q 1 Q 0";
    lost[3] = '\0';
    const CheckedFile file = CheckText(ModelText()
                                           .Section("#Cas", {"1 G 1 G 0", lost})
                                           .Elements({kNode, "8 2 0 0 0 0 0 0 2 0 0 -1 2 1"})
                                           .Text());
    EXPECT_THAT(file.Codes(), ElementsAre("TMR114"));
}

TEST(LostCases, ExplainParametersThatAreNotRead)
{
    const CheckedFile file = CheckText(ModelText()
                                           .Section("#Cas", {"1 G 1 G 0", "11 1.35 G 2 A 0"})
                                           .Section("#TAB_PARAM_CAS", {"11 2 1 1 32767 0"})
                                           .Elements({kNode})
                                           .Text());
    EXPECT_THAT(file.Codes(), ElementsAre("TMR203"));
}

TEST(FileFindings, ALineThatANulEndsDoesNotEndEarlyToo)
{
    std::string nul = kBar + "1 1 1 1 1 5";
    nul[nul.size() - 2] = '\0';
    const CheckedFile file = CheckText(WithTables().Elements({nul}).Text());
    EXPECT_THAT(file.Lines(), ElementsAre(HasSubstr("bar 9: a NUL character ends the line")));
}

std::string RefusalOf(const CheckedFile& file)
{
    EXPECT_FALSE(file.imported.reader);
    return file.imported.refusal ? host::TextOf(*file.imported.refusal, host::Language::kEnglish)
                                 : std::string();
}

TEST(Refusals, SayWhyTheFileCannotBeOpened)
{
    const CaughtMessageBoxes boxes;
    const auto folder = std::filesystem::temp_directory_path();
    const CheckedFile missing(folder / "tamur-no-such-file.txt");
    EXPECT_THAT(missing.Codes(), ElementsAre("TMR001"));
    EXPECT_THAT(RefusalOf(missing), HasSubstr("No such file"));
    EXPECT_THAT(CheckedFile(folder).Codes(), ElementsAre("TMR011"));
    EXPECT_THAT(CheckText("#Version\n9.9\n").Codes(), ElementsAre("TMR004"));
    EXPECT_EQ(boxes.Boxes().size(), 0);
}

TEST(Refusals, TellVersionsThatAreNotWellWrittenFromOldOnes)
{
    const auto codes = [](const std::string& version) {
        return CheckText(ModelText(version).Elements({kNode}).Text()).Codes();
    };
    for (const char* old : {"9.9", "10", "10.0", "2.5"}) {
        EXPECT_THAT(codes(old), ElementsAre("TMR004")) << old;
    }
    for (const char* odd : {"V12.1", " 12.1", "100.1", "012.1"}) {
        EXPECT_THAT(codes(odd), ElementsAre("TMR003")) << odd;
    }
    for (const char* absent : {"", "  "}) {
        EXPECT_THAT(codes(absent), ElementsAre("TMR012")) << absent;
    }
    const std::string longest = "12." + std::string(28, '1'), longer = longest + '1';
    for (const std::string& accepted :
         {"12,1"s, "9"s, "11"s, "12."s, "12.A"s, "12.1AB"s, "12.1A2B"s, "12.1.1"s, longer}) {
        EXPECT_THAT(codes(accepted), ElementsAre("TMR010")) << accepted;
    }
    for (const std::string& usual :
         {"10.1"s, "12.2A"s, "14.1E"s, "14.1E2"s, "14.12e34"s, "14.1E \t"s, "15.0"s, longest}) {
        EXPECT_THAT(codes(usual), IsEmpty()) << usual;
    }
}

TEST(Refusals, NameTheSectionThatIsMissing)
{
    const std::string whole = ModelText().Elements({kNode}).Text();
    for (const std::string header : {"#Espace", "#Tolerance", "#Rigide"}) {
        std::string without = whole;
        without.erase(without.find(header), header.size() + 1);
        EXPECT_THAT(RefusalOf(CheckText(without)), HasSubstr("the section " + header)) << header;
    }
    std::string misspelt = whole;
    misspelt.replace(misspelt.find("#Rigide"), 7, "#rigide");
    EXPECT_THAT(RefusalOf(CheckText(misspelt)), StartsWith("\"#rigide\" must be exactly #Rigide"));
}

TEST(Refusals, TextAfterCtrlZIsWhyNothingIsThere)
{
    EXPECT_THAT(CheckText("\x1A" + ModelText().Text()).Codes(), ElementsAre("TMR106"));
}

}  // namespace
}  // namespace tamur::test
