// What Import accepts and refuses, and what a refusal leaves.
#include <gtest/gtest.h>

#include <atomic>

#include "support/cannot_open.h"
#include "support/model_text.h"
#include "support/open_files.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

const std::string kNode = "1 7 0 1 0 1.5 2.5 0 0 0 0 3";

TEST(Import, MissingFileIsRefusedWithAMessageBox)
{
    const CaughtMessageBoxes boxes;
    const auto reader = NewReader();
    EXPECT_EQ(ImportFile(*reader, "no-such-file.txt"), E_FAIL);
    ExpectCannotOpen(boxes, "no-such-file.txt");
}

TEST(Import, WaitsUntilTheMessageBoxIsClosed)
{
    std::atomic<bool> hasReturned = false;
    std::atomic<bool> hadReturned = false;
    const CaughtMessageBoxes boxes([&] { hadReturned = hasReturned.load(); });
    ImportFile(*NewReader(), "no-such-file.txt");
    hasReturned = true;
    EXPECT_EQ(boxes.Boxes().size(), 1u);
    EXPECT_FALSE(hadReturned);
}

TEST(Import, ReadableFileIsImportedWithoutAMessageBox)
{
    const CaughtMessageBoxes boxes;
    EXPECT_EQ(ImportText(*NewReader(), ModelText()), S_OK);
    EXPECT_TRUE(boxes.Boxes().empty());
}

// ------------------------------------------------------------------ version

bool IsAccepted(const std::string& version)
{
    return ImportText(*NewReader(), ModelText(version)) == S_OK;
}

TEST(Version, FromTenPointOneOnIsAccepted)
{
    const CaughtMessageBoxes boxes;
    for (const char* version :
         {"10.1", "10.2", "10.10", "10.1.2", "10.1 ", "12.2A", "14.1E", "11", "99", "20.0"}) {
        EXPECT_TRUE(IsAccepted(version)) << version;
    }
    EXPECT_TRUE(boxes.Boxes().empty());
}

TEST(Version, OlderOnesAreRefused)
{
    const CaughtMessageBoxes boxes;
    for (const char* version : {"10.0", "10", "10.09", "9.9", "1.5", "1.0.2", ".5"}) {
        EXPECT_FALSE(IsAccepted(version)) << version;
    }
    EXPECT_EQ(boxes.Boxes().size(), 7u) << "one for each";
}

// The comparison is one of text, five bytes long; these follow from it.
TEST(Version, ComparesAsText)
{
    const CaughtMessageBoxes boxes;
    const struct {
        const char* version;
        bool accepted;
        const char* why;
    } kCases[] = {
        {"2", true, "without a point nothing is put in front, and 2 is more than 1"},
        {"1", false, "ends where 10.1 goes on"},
        {"9", true, "only a version with a point is padded"},
        {"100.1", false, "compares as 0100.1"},
        {"010.1", false, "compares as 0010.1"},
        {" 10.1", false, "the blank is part of it: compares as 0 10.1"},
        {"10,2", false, "a comma is less than a point"},
        {"10/2", true, "a slash is more than a point"},
        {"10-x.9", false, "its point is the fifth character: compares as 010-x.9"},
        {"1x.0", true, "a letter is more than a digit"},
        {"v.9", false, "compares as 0v.9"},
        {"\xE9", true, "bytes count as unsigned"},
        {"-1", false, "a minus sign is less than a digit"},
    };
    for (const auto& each : kCases) {
        EXPECT_EQ(IsAccepted(each.version), each.accepted) << each.version << ": " << each.why;
    }
}

TEST(Version, RefusalSaysThatTheFileCannotBeOpened)
{
    const CaughtMessageBoxes boxes;
    const TemporaryFile file(ModelText("9.9").Text());
    EXPECT_EQ(ImportFile(*NewReader(), file.Path()), E_FAIL);
    ExpectCannotOpen(boxes, file.Path().string());
}

TEST(Version, FileWithoutOneIsRefused)
{
    const std::string settings = "#Espace\n2\n#Tolerance\n1\n#Rigide\n1\n";
    for (const std::string& content : {std::string(), settings, "#Version\n\n" + settings,
                                       "#Version\n" + settings, settings + "#Version"}) {
        const CaughtMessageBoxes boxes;
        const TemporaryFile file(content);
        EXPECT_EQ(ImportFile(*NewReader(), file.Path()), E_FAIL) << content;
        ExpectCannotOpen(boxes, file.Path().string());
    }
}

// ------------------------------------------------------------------ order and extent

TEST(Import, OrderOfTheSectionsDoesNotMatter)
{
    const auto reader = Imported(ModelText::Empty()
                                     .Elements({kNode})
                                     .Section("#Attaches", {"R1 7"})
                                     .Section("#Geometries", {"P1 1"})
                                     .Section("#Groupes", {"2 3 2 G Oui"})
                                     .Section("#Materiaux", {"A 1"})
                                     .Section("#Rigide", {"0"})
                                     .Section("#Tolerance", {"0.5"})
                                     .Section("#Espace", {"1"})
                                     .Section("#Version", {"10.1"}));
    EXPECT_EQ(MaterialNames(*reader), (Names{"A"}));
    EXPECT_EQ(SectionNames(*reader), (Names{"P1"}));
    EXPECT_EQ(ReleaseNames(*reader), (Names{"R1"}));
    EXPECT_EQ(GroupTitles(*reader), (Names{"G"}));
    EXPECT_EQ(Nodes(*reader).Size(), 1);
    TMRStructureData data = {};
    ASSERT_EQ(reader->GetStructureGlobalData(&data), S_OK);
    EXPECT_EQ(data.tol3D, 0.5);
    EXPECT_EQ(data.espaceDeTravail, TMRWS_GRILLE);
    EXPECT_EQ(data.rigideEnFlexion, TMRStructureNonRigide);
}

TEST(Import, UnknownSectionsAreIgnored)
{
    const auto reader =
        Imported(ModelText().Section("#Autre", {"A 1", "2 2 2"}).Section("#Materiaux", {"B 2"}));
    EXPECT_EQ(MaterialNames(*reader), (Names{"B"}));
}

TEST(Import, FileWithoutElementsIsFine)
{
    EXPECT_EQ(Nodes(*Imported(ModelText())).Size(), 0);
}

TEST(Import, ElementsRunToTheEndOfTheFile)
{
    const auto reader = Imported(ModelText().Raw("#Elements\n" + kNode + "\n" + kNode));
    EXPECT_EQ(Nodes(*reader).Size(), 2);
}

TEST(Import, ElementsEndAtTheNextHeader)
{
    const auto reader =
        Imported(ModelText().Elements({kNode, kNode}).Section("#Autre", {kNode}).Elements({kNode}));
    EXPECT_EQ(Nodes(*reader).Size(), 2);
}

TEST(Import, EmptyLinesAmongElementsAreSkipped)
{
    EXPECT_EQ(Nodes(*Imported(ModelText().Elements({"", kNode, "", "", kNode, ""}))).Size(), 2);
}

TEST(Import, ElementLineWithoutANumberIsIgnored)
{
    EXPECT_EQ(Nodes(*Imported(ModelText().Elements({"noeud", kNode, " ", ". 7"}))).Size(), 1);
}

// ------------------------------------------------------------------ what is left over

TEST(Import, RefusedOneLeavesTheTablesAsTheyWere)
{
    const CaughtMessageBoxes boxes;
    const auto reader = Imported(ModelText()
                                     .Section("#Materiaux", {"A 1"})
                                     .Section("#Geometries", {"P1 1"})
                                     .Section("#Groupes", {"2 3 2 G Oui"})
                                     .Elements({kNode}));
    const auto expectUnchanged = [&] {
        EXPECT_EQ(MaterialNames(*reader), (Names{"A"}));
        EXPECT_EQ(SectionNames(*reader), (Names{"P1"}));
        EXPECT_EQ(GroupTitles(*reader), (Names{"G"}));
        EXPECT_EQ(Nodes(*reader).Size(), 1);
    };
    const std::string tables = "#Materiaux\nB 2\n#Groupes\n2 4 2 H Oui\n#Elements\n" + kNode;
    EXPECT_EQ(ImportFile(*reader, "no-such-file.txt"), E_FAIL);
    expectUnchanged();
    EXPECT_EQ(ImportText(*reader, ModelText("9.9").Raw(tables)), E_FAIL);
    expectUnchanged();
    EXPECT_EQ(ImportText(*reader, "#Version\n12.1\n" + tables), E_FAIL);
    expectUnchanged();
}

TEST(Import, ReaderIsUsableAfterARefusal)
{
    const auto reader = NewReader();
    EXPECT_EQ(ImportText(*reader, "#Version\n12.1\n"), E_FAIL);
    EXPECT_EQ(ImportText(*reader, ModelText().Elements({kNode})), S_OK);
    EXPECT_EQ(Nodes(*reader).Size(), 1);
}

TEST(Import, SecondOneAddsItsElements)
{
    const auto reader = Imported(ModelText().Elements({kNode}));
    ASSERT_EQ(ImportText(*reader, ModelText().Elements({kNode, kNode})), S_OK);
    EXPECT_EQ(Nodes(*reader).Size(), 3);
}

TEST(Import, FileIsClosedAfterSuccessAndAfterARefusedVersion)
{
    const CaughtMessageBoxes boxes;
    for (const char* version : {"12.1", "9.9"}) {
        const TemporaryFile file(ModelText(version).Text());
        const auto reader = NewReader();
        ImportFile(*reader, file.Path());
        EXPECT_FALSE(IsHeldOpen(file.Path())) << version;
    }
}

// An import that ends because a section is missing keeps its file until the reader goes.
TEST(Import, FileWithoutASettingStaysOpenAsLongAsTheReader)
{
    const TemporaryFile file("#Version\n12.1\n");
    {
        const auto reader = NewReader();
        EXPECT_EQ(ImportFile(*reader, file.Path()), E_FAIL);
        EXPECT_TRUE(IsHeldOpen(file.Path()));
    }
    EXPECT_FALSE(IsHeldOpen(file.Path()));
}

}  // namespace
}  // namespace tamur::test
