// What all kinds of element lines share: the head and the labels.
#include <gmock/gmock.h>

#include "models/read_element.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

LONG CountElementsOf(const std::string& line)
{
    return CountElements(*ImportedElements({line}));
}

TEST(ElementLines, HeadAndColumnsReachTheirRecord)
{
    const auto node = NodeOf("1 7 0 1 0 1.5 2.5 0 0 0 0 3");
    EXPECT_EQ(node->identifier, 7);
    EXPECT_EQ(node->ElemLabels.nbLabels, 0);
    EXPECT_EQ(node->ElemLabels.tabLabels, nullptr);
    EXPECT_THAT(Coordinates(node->Geometrie), ElementsAre(1.5, 2.5, 0.0));
    EXPECT_EQ(node->blocage, 3);
}

TEST(ElementLines, BlanksAndTabsSeparateInAnyNumber)
{
    const auto node = NodeOf("\t 1\t\t7   0 1 \t0 1.5\t2.5 0 0 0 0\t3 \t");
    EXPECT_EQ(node->identifier, 7);
    EXPECT_THAT(Coordinates(node->Geometrie), ElementsAre(1.5, 2.5, 0.0));
    EXPECT_EQ(node->blocage, 3);
}

TEST(ElementLines, FurtherColumnsAreIgnored)
{
    EXPECT_EQ(NodeOf("1 7 0 1 0 1 2 3 0 0 0 3 99 98 end")->blocage, 3);
}

TEST(ElementLines, FurtherPointsAreReadPast)
{
    const auto node = NodeOf(ElementLine(1).Points({"1 2 3", "4 5 6", "7 8 9"}).Columns("5"));
    EXPECT_THAT(Coordinates(node->Geometrie), ElementsAre(1.0, 2.0, 3.0));
    EXPECT_EQ(node->blocage, 5);
}

TEST(ElementLines, KindsWithoutARecordAreDroppedSilently)
{
    for (const int kind : {-1, 0, 14, 18, 19, 23, 257}) {
        const auto reader =
            ImportedElements({ElementLine(kind).Points({"1 2 3", "4 5 6"}).Columns("1 1 1"),
                              ElementLine(1).Points({"1 2 3"}).Columns("1")});
        EXPECT_EQ(CountElements(*reader), 1) << kind;
        EXPECT_EQ(Nodes(*reader).Size(), 1) << kind;
        EXPECT_THAT(Messages(*reader), IsEmpty()) << kind;
    }
}

TEST(ElementLines, LinesThatDoNotStartWithAKindAreDropped)
{
    for (const std::string line : {"node 7 0 1 0 1 2 3 0 0 0 3", " ", "-", "x1 7 0 1 0 1 2 3"}) {
        EXPECT_EQ(CountElementsOf(line), 0) << line;
    }
}

TEST(ElementLines, EmptyLinesDoNotEndTheSectionAndAHeaderDoes)
{
    const std::string node = ElementLine(1).Points({"1 2 3"}).Columns("1");
    const auto reader = ImportedElements({"", node, "", node, "#Suite", node});
    EXPECT_EQ(Nodes(*reader).Size(), 2);
}

TEST(ElementLines, RecordsKeepTheOrderOfTheFile)
{
    const auto reader = ImportedElements({ElementLine(1, 30).Points({"0 0 0"}),
                                          ElementLine(1, 10).Points({"0 0 0"}),
                                          ElementLine(1, 30).Points({"0 0 0"})});
    std::vector<LONG> identifiers;
    for (const auto& node : Nodes(*reader)) identifiers.push_back(node->identifier);
    EXPECT_THAT(identifiers, ElementsAre(30, 10, 30));
}

// ------------------------------------------------------------------- labels

std::vector<std::string> LabelsOf(std::initializer_list<std::string_view> labels)
{
    const auto node = NodeOf(ElementLine(1).Points({"1 2 3"}).Labels(labels).Columns("9"));
    EXPECT_EQ(node->blocage, 9);  // the labels took exactly their words
    return TextsOf(node->ElemLabels);
}

TEST(ElementLabels, KeepTheirOrder)
{
    EXPECT_THAT(LabelsOf({"B2", "A1", "12", "A1"}), ElementsAre("B2", "A1", "12", "A1"));
}

TEST(ElementLabels, LoseOneFinalEndCharacter)
{
    EXPECT_THAT(LabelsOf({"A12\x04", "\x04", "B\x04\x04",
                          "C\x04"
                          "D",
                          "E"}),
                ElementsAre("A12", "", "B\x04",
                            "C\x04"
                            "D",
                            "E"));
}

TEST(ElementLabels, AreInTheAnsiCodePage)
{
    EXPECT_THAT(LabelsOf({"\xE9t\xE9", "\x80", "\x9C\xFF", "\xA0", "\x82"}),
                ElementsAre("été", "€", "œÿ", "\u00A0", "‚"));
}

TEST(ElementLabels, OfKindsThatHaveNoneAreReadPast)
{
    const auto reader = ImportedElements(
        {ElementLine(5).Points({"1 2 3"}).Labels({"A", "B"}).Columns("4 2 10 20 30 40 50 60")});
    const auto load = ChargesPonctuelles(*reader).At(0);
    EXPECT_EQ(load->NumCas, 4);
    EXPECT_EQ(load->Mz, 60.0);
}

TEST(ElementLabels, ThatTheLineDoesNotHoldAreEmpty)
{
    const auto node = NodeOf("1 7 0 1 3 1 2 3 ONE");
    EXPECT_THAT(TextsOf(node->ElemLabels), ElementsAre("ONE", "", ""));
    EXPECT_EQ(node->blocage, 0);
}

TEST(ElementLabels, MayBeLong)
{
    for (const std::size_t length : {254u, 255u, 256u, 5000u, 49900u}) {
        const std::string label(length, 'L');
        const auto reader = ImportedElements(
            {ElementLine(1).Points({"1 2 3"}).Labels({label, "A"}).Columns("5"),
             ElementLine(2).Points({"0 0 0", "1 0 0"}).Labels({"B", label}).Columns("3")});
        const auto node = Nodes(*reader).At(0);
        EXPECT_EQ(TextsOf(node->ElemLabels), (std::vector<std::string>{label, "A"}));
        EXPECT_EQ(node->blocage, 5) << length;
        const auto bar = Filaires(*reader).At(0);
        EXPECT_EQ(TextsOf(bar->ElemLabels), (std::vector<std::string>{"B", label}));
        EXPECT_EQ(bar->GroupNumber, 3) << length;
    }
}

}  // namespace
}  // namespace tamur::test
