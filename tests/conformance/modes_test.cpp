#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "conformance/load_model.h"

namespace tamur::test {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::vector<std::string> kModalCase = {"5 Modal 3 M 0"};

// The columns from the mass choice to the second skipped word.
constexpr char kMiddle[] = " 2 1 1.0 2 0.2 3 0.3 4 0.4 5 0.5 6 0.6 7 0.7 8 0.8 1 mot 41 O mot ";

std::string ModalLine(int modes, const std::string& dampings = "",
                      const std::string& percentages = "90 91.5 92")
{
    return "5 3 " + std::to_string(modes) + " " + percentages + kMiddle + dampings;
}

ComPtr<ITAMURStructureReader> WithLines(const std::vector<std::string>& lines)
{
    return Imported(LoadModel(kModalCase, lines));
}

Record<TMRModes> ImportedModes(const std::vector<std::string>& lines)
{
    return test::ModesOf(*WithLines(lines));
}

std::vector<double> DampingsOf(const Record<TMRModes>& modes)
{
    return Values(modes->pDampingValues, modes->iNrOfModes);
}

std::vector<double> PercentagesOf(const Record<TMRModes>& modes)
{
    return {modes->dPercentX, modes->dPercentY, modes->dPercentZ};
}

void ExpectStartingValues(const Record<TMRModes>& modes)
{
    EXPECT_EQ(modes->iNrOfModes, 0);
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(100, 100, 100));
    EXPECT_EQ(modes->iMassChoice, 0);
    EXPECT_THAT(modes->pNumCas, Each(0));
    EXPECT_THAT(modes->pCoeffCas, Each(0.0));
    EXPECT_EQ(modes->bComputeDampings, 0);
    EXPECT_NE(modes->pDampingValues, nullptr);
    EXPECT_EQ(modes->iCalculMethod, 0);
    EXPECT_EQ(modes->bResidualMode, 0);
}

TEST(Modes, StartAtHundredPercentBeforeAnyImport)
{
    ExpectStartingValues(test::ModesOf(*NewReader()));
}

TEST(Modes, FileWithoutAModalLineKeepsTheStartingValues)
{
    ExpectStartingValues(ImportedModes({}));
    ExpectStartingValues(ImportedModes({"5 3"}));
}

TEST(Modes, LineFillsEveryField)
{
    const auto modes = ImportedModes({ModalLine(3, "0.05 0.06 0.07")});
    EXPECT_EQ(modes->iNrOfModes, 3);
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(90, 91.5, 92));
    EXPECT_EQ(modes->iMassChoice, 2);
    EXPECT_THAT(modes->pNumCas, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
    EXPECT_THAT(modes->pCoeffCas, ElementsAre(1.0, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8));
    EXPECT_EQ(modes->bComputeDampings, 1);
    EXPECT_THAT(DampingsOf(modes), ElementsAre(0.05, 0.06, 0.07));
    EXPECT_EQ(modes->iCalculMethod, 0);
    EXPECT_EQ(modes->bResidualMode, 1);
}

struct Switches {
    const char* text;  // columns 22 to 26
    int computesDampings;
    int method;
    int residualMode;
};

TEST(Modes, CodesBecomeSwitchesAndDampingsAreReadWhateverTheySay)
{
    for (const Switches& expected :
         {Switches{"1 mot 41 O mot", 1, 0, 1}, Switches{"0 mot 40 N mot", 0, 1, 0},
          Switches{"2 O 0 o O", 0, 1, 0}, Switches{"-1 41 -41 1 41", 0, 1, 0}}) {
        SCOPED_TRACE(expected.text);
        const auto modes =
            ImportedModes({std::string("5 3 2 1 1 1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 ") +
                           expected.text + " 0.05 0.06"});
        EXPECT_EQ(modes->bComputeDampings, expected.computesDampings);
        EXPECT_EQ(modes->iCalculMethod, expected.method);
        EXPECT_EQ(modes->bResidualMode, expected.residualMode);
        EXPECT_THAT(DampingsOf(modes), ElementsAre(0.05, 0.06));
    }
}

TEST(Modes, CaseOfTheLineIsNotUsed)
{
    const auto modes = ImportedModes({"99 3 0 10 20 30"});
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(10, 20, 30));
}

TEST(Modes, ValuesBeyondTheCountAreNotRead)
{
    EXPECT_THAT(DampingsOf(ImportedModes({ModalLine(1, "0.05 0.06 0.07")})), ElementsAre(0.05));
    const auto none = ImportedModes({ModalLine(0, "0.05")});
    EXPECT_EQ(none->iNrOfModes, 0);
    EXPECT_NE(none->pDampingValues, nullptr);
}

TEST(Modes, ValuesThatTheLineDoesNotHoldAreZero)
{
    EXPECT_THAT(DampingsOf(ImportedModes({ModalLine(4, "0.05 0.06")})),
                ElementsAre(0.05, 0.06, 0, 0));
    EXPECT_THAT(DampingsOf(ImportedModes({ModalLine(3, "0.05 x 0.06")})), ElementsAre(0.05, 0, 0));
    EXPECT_THAT(DampingsOf(ImportedModes({ModalLine(2, "1e999 0.06")})), ElementsAre(0, 0));
}

TEST(Modes, NegativeCountIsKeptAndHasNoValues)
{
    for (const int count : {-1, -3, -2147483647 - 1}) {
        const auto modes = ImportedModes({ModalLine(count, "0.05")});
        EXPECT_EQ(modes->iNrOfModes, count);
        EXPECT_NE(modes->pDampingValues, nullptr);
        EXPECT_THAT(PercentagesOf(modes), ElementsAre(90, 91.5, 92));
        EXPECT_EQ(modes->bResidualMode, 1);
    }
}

TEST(Modes, CountBeyondTheLineIsKeptAndTheMissingValuesAreZero)
{
    const auto hundred =
        ImportedModes({"2 3 100 90 90 90 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 x 41 N x"});
    EXPECT_EQ(hundred->iNrOfModes, 100);
    EXPECT_THAT(DampingsOf(hundred), AllOf(SizeIs(100), Each(0.0)));

    const auto most = ImportedModes({ModalLine(49999, "0.05 0.06")});
    EXPECT_EQ(most->iNrOfModes, 49999);
    std::vector<double> expected(49999, 0.0);
    expected[0] = 0.05;
    expected[1] = 0.06;
    EXPECT_EQ(DampingsOf(most), expected);
}

// A line has 49999 characters at most, so such a number cannot be meant.
TEST(Modes, CountBeyondAnyLineIsNone)
{
    for (const int count : {50000, 2000000000}) {
        const auto modes = ImportedModes({ModalLine(count, "0.05")});
        EXPECT_EQ(modes->iNrOfModes, 0);
        EXPECT_NE(modes->pDampingValues, nullptr);
        EXPECT_THAT(PercentagesOf(modes), ElementsAre(90, 91.5, 92));
        EXPECT_EQ(modes->bResidualMode, 1);
    }
}

TEST(Modes, SkippedWordsMayBeLong)
{
    for (const std::size_t length : {255u, 256u, 5000u}) {
        const std::string word(length, 'w');
        const auto modes = ImportedModes({"5 3 1 1 1 1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 " +
                                          word + " 41 O " + word + " 0.05"});
        EXPECT_EQ(modes->iCalculMethod, 0) << length;
        EXPECT_EQ(modes->bResidualMode, 1) << length;
        EXPECT_THAT(DampingsOf(modes), ElementsAre(0.05)) << length;
    }
}

TEST(Modes, CountBeyond32BitsEndsTheLine)
{
    ExpectStartingValues(ImportedModes({"5 3 99999999999 90 91 92"}));
}

TEST(Modes, ShortLineLeavesTheRestAsItWas)
{
    const auto modes = ImportedModes({"5 3 2 80 81"});
    EXPECT_EQ(modes->iNrOfModes, 2);
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(80, 81, 100));
    EXPECT_THAT(DampingsOf(modes), ElementsAre(0, 0));
    EXPECT_EQ(modes->bComputeDampings, 0);
    EXPECT_EQ(modes->iCalculMethod, 0);
    EXPECT_EQ(modes->bResidualMode, 0);
}

TEST(Modes, ShortLineMayEndInsideThePairs)
{
    const auto modes = ImportedModes({"5 3 0 80 81 82 3 1 1.0 2"});
    EXPECT_EQ(modes->iMassChoice, 3);
    EXPECT_THAT(modes->pNumCas, ElementsAre(1, 2, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(modes->pCoeffCas, ElementsAre(1.0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(Modes, UnreadableColumnEndsTheLine)
{
    const auto modes = ImportedModes({"5 3 0 80 x 82 3"});
    EXPECT_EQ(modes->dPercentX, 80);
    EXPECT_EQ(modes->dPercentZ, 100);
    EXPECT_EQ(modes->iMassChoice, 0);
}

TEST(Modes, SecondLineOverwritesTheFieldsAndEndsWithoutModes)
{
    const auto modes =
        ImportedModes({ModalLine(2, "0.05 0.06"), ModalLine(3, "0.1 0.2 0.3", "1 2 3")});
    EXPECT_EQ(modes->iNrOfModes, 0);
    EXPECT_NE(modes->pDampingValues, nullptr);
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(1, 2, 3));
    EXPECT_EQ(modes->bResidualMode, 1);
}

TEST(Modes, EveryFurtherLineEndsWithoutModes)
{
    const auto modes =
        ImportedModes({ModalLine(1, "0.05"), ModalLine(1, "0.06"), ModalLine(1, "0.07")});
    EXPECT_EQ(modes->iNrOfModes, 0);
    EXPECT_EQ(ImportedModes({ModalLine(1, "0.05"), ModalLine(0), ModalLine(2, "1 2")})->iNrOfModes,
              0);
    EXPECT_EQ(ImportedModes({ModalLine(1, "0.05"), ModalLine(-1)})->iNrOfModes, 0);
}

TEST(Modes, SecondLineIsReadInFullWhenTheFirstMadeNoDampings)
{
    for (const int first : {0, -1, 50000}) {
        const auto modes = ImportedModes({ModalLine(first), ModalLine(2, "0.05 0.06", "1 2 3")});
        EXPECT_EQ(modes->iNrOfModes, 2) << first;
        EXPECT_THAT(PercentagesOf(modes), ElementsAre(1, 2, 3)) << first;
        EXPECT_THAT(DampingsOf(modes), ElementsAre(0.05, 0.06)) << first;
    }
}

TEST(Modes, ShortSecondLineLeavesTheRestAsItWas)
{
    const auto modes = ImportedModes({ModalLine(2, "0.05 0.06"), "5 3 1 50"});
    EXPECT_EQ(modes->iNrOfModes, 0);
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(50, 91.5, 92));
    EXPECT_EQ(modes->iMassChoice, 2);
    EXPECT_EQ(modes->pNumCas[7], 8);
    EXPECT_EQ(modes->bComputeDampings, 1);
    EXPECT_EQ(modes->bResidualMode, 1);
}

TEST(Modes, LineWithoutModesLeavesRoomForTheNext)
{
    for (const int none : {0, -1, 2000000000}) {
        SCOPED_TRACE(none);
        EXPECT_THAT(DampingsOf(ImportedModes({ModalLine(none), ModalLine(2, "0.05 0.06")})),
                    ElementsAre(0.05, 0.06));
    }
}

TEST(Modes, SecondImportEndsWithoutModes)
{
    const auto reader = WithLines({ModalLine(2, "0.05 0.06")});
    ASSERT_EQ(ImportText(*reader, LoadModel(kModalCase, {ModalLine(3, "1 2 3", "1 2 3")})), S_OK);
    const auto modes = test::ModesOf(*reader);
    EXPECT_THAT(DampingsOf(modes), IsEmpty());
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(1, 2, 3));
}

TEST(Modes, SecondImportWithoutAModalLineKeepsThem)
{
    const auto reader = WithLines({ModalLine(2, "0.05 0.06")});
    ASSERT_EQ(ImportText(*reader, ModelText()), S_OK);
    const auto modes = test::ModesOf(*reader);
    EXPECT_THAT(DampingsOf(modes), ElementsAre(0.05, 0.06));
    EXPECT_THAT(PercentagesOf(modes), ElementsAre(90, 91.5, 92));
}

}  // namespace
}  // namespace tamur::test
