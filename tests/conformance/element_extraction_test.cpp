// How the columns of element lines are extracted: a number ends where it cannot go on, and the
// first column that cannot be read ends the line.
#include <gmock/gmock.h>

#include "models/read_element.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::Each;
using testing::ElementsAre;

TEST(ElementExtraction, BadColumnZeroesAllThatFollow)
{
    const auto surface = SurfaceOf(ElementLine(3).Points({"1 2 3"}).Columns("5 x 1 3 4 5 6 7 8"));
    EXPECT_EQ(surface->GroupNumber, 5);
    EXPECT_EQ(Utf8(surface->ElementType), "Coque");  // what an unknown type code gives
    EXPECT_EQ(surface->MeshType, surfMeshType_auto);
    EXPECT_EQ(surface->NbXMesh, 0);
    EXPECT_EQ(surface->NbYMesh, 0);
    EXPECT_EQ(surface->Thickness, 0.0);
    EXPECT_EQ(surface->PenteX, 0.0);
    EXPECT_EQ(surface->PenteY, 0.0);
}

TEST(ElementExtraction, BadCoordinateZeroesTheAnnouncedPointsAndLabels)
{
    const auto opening = OpeningOf("17 7 0 2 2 1 2 oops 4 5 6 A B 0 0 0 8 9");
    EXPECT_EQ(opening->identifier, 7);
    EXPECT_THAT(Coordinates(opening->Surface), ElementsAre(1, 2, 0, 0, 0, 0));
    EXPECT_THAT(TextsOf(opening->ElemLabels), ElementsAre("", ""));
    EXPECT_EQ(opening->NbXMesh, 0);
    EXPECT_EQ(opening->NbYMesh, 0);
}

TEST(ElementExtraction, BadIdentifierLeavesNoPoints)
{
    const auto opening = OpeningOf("17 x 0 2 1 1 2 3 4 5 6 A 0 0 0 8 9");
    EXPECT_EQ(opening->identifier, 0);
    EXPECT_EQ(opening->Surface.nbPoints, 0);
    EXPECT_EQ(opening->ElemLabels.nbLabels, 0);
    EXPECT_EQ(opening->NbXMesh, 0);
}

TEST(ElementExtraction, BadUnusedColumnCountsAsMuchAsAnyOther)
{
    for (const std::string unused : {"x 0 0", "0 x 0", "0 0 x"}) {
        EXPECT_EQ(NodeOf("1 7 0 1 0 1 2 3 " + unused + " 5")->blocage, 0) << unused;
    }
}

TEST(ElementExtraction, ShortLinesLeaveZeros)
{
    const auto surface = SurfaceOf("3 7 0 1 0 1 2");
    EXPECT_EQ(surface->identifier, 7);
    EXPECT_THAT(Coordinates(surface->Surface), ElementsAre(1, 2, 0));
    EXPECT_EQ(surface->GroupNumber, 0);
    EXPECT_EQ(surface->Thickness, 0.0);

    EXPECT_EQ(OpeningOf("17")->identifier, 0);
    EXPECT_EQ(OpeningOf("17 7")->identifier, 7);
}

TEST(ElementExtraction, NumbersEndAtTheFirstCharacterThatCannotContinueThem)
{
    // Integers in the first column (GroupNumber), reals in the next ones (dX, dY).
    struct Case {
        std::string columns;
        int group;
        double x, y;
    };
    for (const Case& c : {
             Case{"12abc 5 6", 12, 0, 0},  // a word cannot become dX
             Case{"3.5 6 7", 3, 0.5, 6},   // what the integer leaves starts the real
             Case{"1e5 6 7", 1, 0, 0},     // "e5" is no real
             Case{"1-2 6", 1, -2, 6},
             Case{"1+2 6", 1, 2, 6},
             Case{"4 1.5.25 9", 4, 1.5, 0.25},
             Case{"4 1-2 9", 4, 1, -2},
             Case{"4 1e+ 6", 4, 0, 0},  // an exponent without digits
             Case{"4 1,5 6", 4, 1, 0},  // no decimal comma
             Case{"4 1d5 6", 4, 1, 0},  // no Fortran exponent
             Case{"4 1E2 6", 4, 100, 6},
             Case{"+4 +1.5 -.5", 4, 1.5, -0.5},
             Case{"010 010 5.", 10, 10, 5},  // no octal
             Case{"0x10 1 1", 0, 0, 0},      // no hexadecimal
             Case{"4 0x10 1", 4, 0, 0},
             Case{"4 inf 1", 4, 0, 0},
             Case{"4 nan 1", 4, 0, 0},
             Case{"- 1 1", 0, 0, 0},
         }) {
        const auto reader =
            ImportedElements({ElementLine(12).Points({"0 0 0"}).Columns(c.columns)});
        const auto displacement = Deplacements(*reader).At(0);
        EXPECT_EQ(displacement->GroupNumber, c.group) << c.columns;
        EXPECT_EQ(displacement->dX, c.x) << c.columns;
        EXPECT_EQ(displacement->dY, c.y) << c.columns;
    }
}

TEST(ElementExtraction, OverflowKeepsTheStartValueAndEndsTheLine)
{
    const auto reader =
        ImportedElements({ElementLine(12).Points({"0 0 0"}).Columns("2147483647 1e308 2"),
                          ElementLine(12).Points({"0 0 0"}).Columns("-2147483648 1 2"),
                          ElementLine(12).Points({"0 0 0"}).Columns("2147483648 1 2"),
                          ElementLine(12).Points({"0 0 0"}).Columns("4 1e309 2"),
                          ElementLine(12).Points({"0 0 0"}).Columns("4 1e-400 2")});
    std::vector<std::vector<double>> values;
    for (const auto& record : Deplacements(*reader)) {
        values.push_back({double(record->GroupNumber), record->dX, record->dY});
    }
    EXPECT_THAT(values, ElementsAre(ElementsAre(2147483647.0, 1e308, 2.0),
                                    ElementsAre(-2147483648.0, 1.0, 2.0), Each(0.0),
                                    ElementsAre(4.0, 0.0, 0.0),
                                    ElementsAre(4.0, 0.0, 2.0)));  // underflow is rounded
}

// ------------------------------------------------------------------- unsigned columns

TEST(ElementExtraction, IdentifierIsUnsignedAndComesOutAsItsBits)
{
    EXPECT_EQ(NodeOf("1 4294967295 0 1 0 1 2 3 0 0 0 5")->identifier, -1);
    EXPECT_EQ(NodeOf("1 2147483648 0 1 0 1 2 3 0 0 0 5")->identifier, -2147483647 - 1);
    EXPECT_EQ(NodeOf("1 -1 0 1 0 1 2 3 0 0 0 5")->identifier, -1);
    const auto beyond = OpeningOf("17 4294967296 0 1 0 1 2 3 0 0 0 5 6");
    EXPECT_EQ(beyond->identifier, 0);
    EXPECT_EQ(beyond->Surface.nbPoints, 0);
}

TEST(ElementExtraction, ThirdColumnHasSixteenBits)
{
    for (const std::string column : {"0", "65535", "-1", "-65535"}) {
        EXPECT_EQ(NodeOf("1 7 " + column + " 1 0 1 2 3 0 0 0 5")->blocage, 5) << column;
    }
    for (const std::string column : {"65536", "70000", "-70000"}) {
        const auto opening = OpeningOf("17 7 " + column + " 1 1 1 2 3 A 0 0 0 5 6");
        EXPECT_EQ(opening->identifier, 7) << column;
        EXPECT_EQ(opening->Surface.nbPoints, 0) << column;
        EXPECT_EQ(opening->ElemLabels.nbLabels, 0) << column;
        EXPECT_EQ(opening->NbXMesh, 0) << column;
    }
}

TEST(ElementExtraction, LastTwoColumnsOfTheHeadAreUnsigned)
{
    EXPECT_EQ(NodeOf("1 7 0 1 0 1 2 3 -5 -1 4294967295 5")->blocage, 5);
    EXPECT_EQ(NodeOf("1 7 0 1 0 1 2 3 0 4294967296 0 5")->blocage, 0);
    EXPECT_EQ(NodeOf("1 7 0 1 0 1 2 3 4294967295 0 0 5")->blocage, 0);  // this one is signed
}

}  // namespace
}  // namespace tamur::test
