// The announced numbers of points and labels, and what becomes of those that cannot be meant.
#include <gmock/gmock.h>

#include "models/element_lines.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;

TEST(ElementCounts, NegativeOnesCountAsNone)
{
    const auto reader = ImportedElements({"17 1 0 -1 0 0 0 0 8 9", "17 2 0 0 -5 0 0 0 8 9",
                                          "17 3 0 -2147483648 -2147483648 0 0 0 8 9"});
    const auto openings = Ouvertures(*reader);
    ASSERT_EQ(openings.Size(), 3);
    for (const auto& opening : openings) {
        EXPECT_EQ(opening->Surface.nbPoints, 0) << opening->identifier;
        EXPECT_EQ(opening->ElemLabels.nbLabels, 0) << opening->identifier;
        EXPECT_EQ(opening->ElemLabels.tabLabels, nullptr) << opening->identifier;
        EXPECT_EQ(opening->NbXMesh, 8) << opening->identifier;
        EXPECT_EQ(opening->NbYMesh, 9) << opening->identifier;
    }
}

TEST(ElementCounts, NegativeOnesOfLoadsOnGroupsCountAsNone)
{
    const auto reader = Imported(
        ModelText().Section("#Cas", {"1 G 1 G 0"}).Elements({"8 7 0 -1 -1 0 0 0 1 0 0 -1 0 0"}));
    ASSERT_EQ(ChargesPoidsPropre(*reader).Size(), 1);
    EXPECT_EQ(ChargesPoidsPropre(*reader).At(0)->dZ, -1.0);
}

TEST(ElementCounts, NegativeOnesAreTooFewForKindsThatNeedPoints)
{
    EXPECT_EQ(CountElements(*ImportedElements({"1 7 0 -1 0 1 2 3 0 0 0 5"})), 0);
    EXPECT_EQ(CountElements(*ImportedElements({"16 7 0 -2 0 1 2 3 4 5 6 0 0 0 5"})), 0);
}

// For points the characters of the line are the limit, for labels those of the longest line.
TEST(ElementCounts, ThatCannotBeMeantDropTheLine)
{
    const std::vector<std::string> lines = {
        "17 7 0 100 0 1 2 3 4 5 6 0 0 0 8 9",
        "17 7 0 0 50000 A B 0 0 0 8 9",
        "17 7 0 2147483647 0 1 2 3",
        "17 7 0 0 2147483647 A",
        "1 7 0 2147483647 2147483647 1 2 3 0 0 0 5",
        "20 7 0 1000000000 0 0 0 0 1 N N",
    };
    for (const std::string& line : lines) {
        EXPECT_EQ(CountElements(*ImportedElements({line})), 0) << line;
    }
}

TEST(ElementCounts, OfMoreLabelsThanTheLineHoldsAreKept)
{
    const auto reader = ImportedElements(
        {"1 7 0 1 40 1 2 3", "1 8 0 1 49999 4 5 6 A B", "17 9 0 0 60 L 0 0 0 8 9"});
    const auto bare = Nodes(*reader).At(0);
    EXPECT_THAT(Coordinates(bare->Geometrie), ElementsAre(1, 2, 3));
    EXPECT_EQ(TextsOf(bare->ElemLabels), std::vector<std::string>(40));

    const auto most = Nodes(*reader).At(1);
    std::vector<std::string> expected = {"A", "B"};
    expected.resize(49999);
    EXPECT_EQ(TextsOf(most->ElemLabels), expected);

    // The columns are words too, as long as labels are wanted.
    const auto opening = Ouvertures(*reader).At(0);
    expected = {"L", "0", "0", "0", "8", "9"};
    expected.resize(60);
    EXPECT_EQ(TextsOf(opening->ElemLabels), expected);
    EXPECT_EQ(opening->NbXMesh, 0);
}

TEST(ElementCounts, OfLabelsThatAreNotThereGiveEmptyTextsNotNullOnes)
{
    const auto reader = ImportedElements(
        {"1 7 0 1 3 1 2 3 A", ElementLine(2).Points({"0 0 0", "1 0 0"}), "2 8 0 2 2 0 0 0 0 0 1"});
    const auto node = Nodes(*reader).At(0);
    const auto bar = Filaires(*reader).At(1);
    ASSERT_EQ(bar->ElemLabels.nbLabels, 2);
    for (const BSTR label : {node->ElemLabels.tabLabels[1], node->ElemLabels.tabLabels[2],
                             bar->ElemLabels.tabLabels[0], bar->ElemLabels.tabLabels[1]}) {
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(SysStringByteLen(label), 0u);
        EXPECT_EQ(label[0], 0);
    }
}

TEST(ElementCounts, OfMoreLabelsThanTheLineHoldsAreKeptForKindsWithoutLabels)
{
    const auto reader = ImportedElements({"5 7 0 1 60 1 2 3 0 0 0 4"});
    ASSERT_EQ(ChargesPonctuelles(*reader).Size(), 1);
    EXPECT_THAT(Coordinates(ChargesPonctuelles(*reader).At(0)->Geometrie), ElementsAre(1, 2, 3));
    EXPECT_EQ(ChargesPonctuelles(*reader).At(0)->NumCas, 0);
}

TEST(ElementCounts, BeyondTheLengthOfTheLineLeaveTheLoadCaseAlone)
{
    const auto reader = Imported(
        ModelText().Section("#Cas", {"1 G 1 G 0"}).Elements({"8 7 0 1000 0 0 0 0 1 0 0 -1 0 0"}));
    EXPECT_EQ(Cas(*reader).At(0)->Type, 1);
    EXPECT_EQ(ChargesPoidsPropre(*reader).Size(), 0);
}

TEST(ElementCounts, BelowTheLengthOfTheLineGiveZerosForWhatIsMissing)
{
    const auto reader = ImportedElements({"17 7 0 5 0 1 2 3 4"});
    const auto opening = Ouvertures(*reader).At(0);
    EXPECT_THAT(Coordinates(opening->Surface),
                ElementsAre(1, 2, 3, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(opening->NbXMesh, 0);
}

TEST(ElementCounts, BeyondThirtyTwoBitsEndTheLineAsNone)
{
    const auto reader = ImportedElements({"17 7 0 3000000000 1 1 2 3 A 0 0 0 8 9"});
    const auto opening = Ouvertures(*reader).At(0);
    EXPECT_EQ(opening->identifier, 7);
    EXPECT_EQ(opening->Surface.nbPoints, 0);
    EXPECT_EQ(opening->ElemLabels.nbLabels, 0);
    EXPECT_EQ(opening->NbXMesh, 0);
}

TEST(ElementCounts, TooFewPointsDropTheLine)
{
    for (const int kind : {1, 4, 5, 9, 12}) {
        const auto reader = ImportedElements(
            {ElementLine(kind).Columns("1 1 1 1 1 1 1 1 1"), ElementLine(kind).Points({"1 2 3"})});
        EXPECT_EQ(CountElements(*reader), 1) << kind;
    }
    for (const int kind : {2, 6, 10, 15, 16, 21, 22}) {
        const auto reader =
            ImportedElements({ElementLine(kind).Columns("1 1 1 1 1 1 1 1 1"),
                              ElementLine(kind).Points({"1 2 3"}).Columns("1 1 1 1 1 1 1 1"),
                              ElementLine(kind).Points({"1 2 3", "4 5 6"})});
        EXPECT_EQ(CountElements(*reader), 1) << kind;
    }
}

TEST(ElementCounts, SegmentsTakeTheFirstTwoOfMorePoints)
{
    const auto reader =
        ImportedElements({ElementLine(16).Points({"1 2 3", "4 5 6", "7 8 9"}).Columns("5")});
    const auto line = LinesInterieur(*reader).At(0);
    EXPECT_THAT(Coordinates(line->Geometrie), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(line->iMaillage, 5);
}

TEST(ElementCounts, PolygonsMayBeEmptyAndStillGiveABlock)
{
    const auto reader = ImportedElements(
        {ElementLine(3), ElementLine(7), ElementLine(11), ElementLine(17), ElementLine(20)});
    const auto surface = Surfaciques(*reader).At(0);
    const auto load = ChargesSurfaciques(*reader).At(0);
    const auto support = AppuisSurfaciques(*reader).At(0);
    const auto opening = Ouvertures(*reader).At(0);
    const auto wall = Parois(*reader).At(0);
    for (const TMR3DPlanarElement* polygon :
         {&surface->Surface, &load->Geometrie, &support->Geometrie, &opening->Surface,
          &wall->Surface}) {
        EXPECT_EQ(polygon->nbPoints, 0);
        EXPECT_NE(polygon->tabPoints, nullptr);
    }
}

TEST(ElementCounts, ManyPointsAndLabelsAreKept)
{
    std::string line = "17 7 0 1000 1000";
    for (int i = 0; i < 3000; ++i) line += " " + std::to_string(i);
    for (int i = 0; i < 1000; ++i) line += " L" + std::to_string(i);
    const auto reader = ImportedElements({line + " 0 0 0 8 9"});
    const auto opening = Ouvertures(*reader).At(0);
    const std::vector<double> coordinates = Coordinates(opening->Surface);
    ASSERT_EQ(coordinates.size(), 3000u);
    for (int i = 0; i < 3000; ++i) ASSERT_EQ(coordinates[static_cast<std::size_t>(i)], i);
    const std::vector<std::string> labels = TextsOf(opening->ElemLabels);
    ASSERT_EQ(labels.size(), 1000u);
    EXPECT_EQ(labels.front(), "L0");
    EXPECT_EQ(labels.back(), "L999");
    EXPECT_EQ(opening->NbYMesh, 9);
}

}  // namespace
}  // namespace tamur::test
