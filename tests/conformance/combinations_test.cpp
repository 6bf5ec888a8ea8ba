#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <utility>

#include "conformance/load_model.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Combination {
    int number;
    std::vector<std::pair<int, double>> terms;

    bool operator==(const Combination&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Combination& combination)
    {
        out << combination.number << ':';
        for (const auto& [caseNumber, coefficient] : combination.terms) {
            out << ' ' << caseNumber << '*' << coefficient;
        }
        return out;
    }
};

std::vector<Combination> CombinationsOf(ITAMURStructureReader& reader)
{
    std::vector<Combination> combinations;
    for (const auto& record : Combinaisons(reader)) {
        Combination combination = {record->iNumCas, {}};
        for (int i = 0; i < record->iNbCmb; ++i) {
            combination.terms.emplace_back(record->pNumCas[i], record->pCoeff[i]);
        }
        combinations.push_back(std::move(combination));
    }
    return combinations;
}

// Static cases 1 to 3 and combinations 10 to 13.
const std::vector<std::string> kCombinedCases = {"1 G 1 G 0",    "2 Q 1 Q 0",    "3 V 1 V 0",
                                                 "10 C10 2 E 0", "11 C11 2 E 0", "12 C12 2 E 0",
                                                 "13 C13 2 E 0"};

ComPtr<ITAMURStructureReader> WithCombinations(const std::vector<std::string>& lines)
{
    return Imported(LoadModel(kCombinedCases, lines));
}

std::vector<Combination> CombinationsOf(const std::vector<std::string>& lines)
{
    return CombinationsOf(*WithCombinations(lines));
}

TEST(Combinations, LineGivesFactoredCases)
{
    EXPECT_THAT(CombinationsOf({"10 2 1 1.35 2 1.5 32767 0"}),
                ElementsAre(Combination{10, {{1, 1.35}, {2, 1.5}}}));
}

TEST(Combinations, TermsAscendByCaseAndRepeatedCasesAreSummed)
{
    EXPECT_THAT(CombinationsOf({"10 2 2 1.5 1 1.35 1 0.1 32767 0"}),
                ElementsAre(Combination{10, {{1, 1.35 + 0.1}, {2, 1.5}}}));
    EXPECT_THAT(CombinationsOf({"10 2 3 1 2 2 1 3 2 4 3 5 32767 0"}),
                ElementsAre(Combination{10, {{1, 3}, {2, 6}, {3, 6}}}));
}

TEST(Combinations, RepeatedCaseMayCancelToZeroAndStays)
{
    EXPECT_THAT(CombinationsOf({"10 2 1 1 1 -1 32767 0"}), ElementsAre(Combination{10, {{1, 0}}}));
}

TEST(Combinations, EndMarkerWithNothingBeforeItStoresAndCountsNothing)
{
    const auto reader = WithCombinations({"10 2 32767 0", "11 2"});
    EXPECT_THAT(CombinationsOf(*reader), IsEmpty());
    EXPECT_EQ(SkippedOf(*reader), 0);
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1, 2, 3, 10, 11, 12, 13));
}

TEST(Combinations, NothingIsReadAfterTheEndMarker)
{
    EXPECT_THAT(
        CombinationsOf({"10 2 1 1.35 32767 0 2 1.5 99 1", "11 2 1 1 32767", "12 2 1 1 32767 x"}),
        ElementsAre(Combination{10, {{1, 1.35}}}, Combination{11, {{1, 1}}},
                    Combination{12, {{1, 1}}}));
}

TEST(Combinations, CompletePairsCountWhenTheMarkerIsMissing)
{
    const auto reader = WithCombinations(
        {"10 2 1 1.35 2 1.5", "11 2 1 1.35 2", "12 2 1 1.35 99", "13 2 1 1.35 x 2 2 1.5 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader),
                ElementsAre(Combination{10, {{1, 1.35}, {2, 1.5}}}, Combination{11, {{1, 1.35}}},
                            Combination{12, {{1, 1.35}}}, Combination{13, {{1, 1.35}}}));
    EXPECT_EQ(SkippedOf(*reader), 0);
}

TEST(Combinations, NumberThatOverflowsEndsTheLine)
{
    EXPECT_THAT(CombinationsOf(
                    {"10 2 1 1.35 99999999999 1 2 1.5 32767 0", "11 2 1 1.35 2 1e999 3 1 32767 0"}),
                ElementsAre(Combination{10, {{1, 1.35}}}, Combination{11, {{1, 1.35}}}));
}

TEST(Combinations, CoefficientThatUnderflowsIsRounded)
{
    EXPECT_THAT(CombinationsOf({"10 2 1 1e-999 2 1.5 32767 0"}),
                ElementsAre(Combination{10, {{1, 0}, {2, 1.5}}}));
}

TEST(Combinations, CaseNumberEndsAtTheDecimalPoint)
{
    EXPECT_THAT(CombinationsOf({"10 2 1.5 2 1 32767 0"}),
                ElementsAre(Combination{10, {{1, 0.5}, {2, 1}}}));
}

TEST(Combinations, EveryTypeOfCaseMayBeNamed)
{
    const auto reader = Imported(
        LoadModel({"1 G 1 G 0", "3 M 3 M 0", "4 S 4 S 0", "9 E 9 E 0", "10 C 2 C 0", "11 D 2 D 0"},
                  {"10 2 9 1 11 2 4 3 3 4 1 5 32767 0"}));
    EXPECT_THAT(CombinationsOf(*reader),
                ElementsAre(Combination{10, {{1, 5}, {3, 4}, {4, 3}, {9, 1}, {11, 2}}}));
}

TEST(Combinations, MayNameItself)
{
    EXPECT_THAT(CombinationsOf({"10 2 10 0.5 1 1 32767 0"}),
                ElementsAre(Combination{10, {{1, 1}, {10, 0.5}}}));
}

TEST(Combinations, LineOfAnUnknownCaseIsIgnored)
{
    const auto reader = WithCombinations({"50 2 1 1 32767 0", "50 2 99 1 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader), IsEmpty());
    EXPECT_EQ(SkippedOf(*reader), 0);
}

TEST(Combinations, LineOfACaseOfAnyTypeIsStored)
{
    EXPECT_THAT(CombinationsOf({"1 2 2 1.5 32767 0"}), ElementsAre(Combination{1, {{2, 1.5}}}));
}

TEST(Combinations, NamingAnUnknownCaseDisablesTheCombination)
{
    const auto reader = WithCombinations({"10 2 1 1.35 99 1.5 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader), IsEmpty());
    EXPECT_EQ(SkippedOf(*reader), 1);
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1, 2, 3, 11, 12, 13));
    EXPECT_THAT(Messages(*reader), IsEmpty());
}

TEST(Combinations, SkippingCascadesDownTheFile)
{
    const auto reader =
        WithCombinations({"12 2 10 1 32767 0",  // 10 is still fine here
                          "10 2 1 1 99 1 32767 0", "11 2 1 1 10 1 32767 0", "13 2 11 1 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader), ElementsAre(Combination{12, {{10, 1}}}));
    EXPECT_EQ(SkippedOf(*reader), 3);
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1, 2, 3, 12));
}

TEST(Combinations, RestOfAnAbandonedLineIsNotRead)
{
    const auto reader = WithCombinations({"10 2 99 1 98 1 97 1 32767 0"});
    EXPECT_EQ(SkippedOf(*reader), 1);
}

TEST(Combinations, AbandonedStaticCaseDisablesThoseThatNameIt)
{
    const auto reader = WithCombinations({"1 2 99 1 32767 0", "10 2 1 1 32767 0"});
    EXPECT_EQ(SkippedOf(*reader), 2);
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(2, 3, 11, 12, 13));
}

TEST(Combinations, EveryCaseOfAnAbandonedNumberIsDisabled)
{
    const auto reader = Imported(
        LoadModel({"10 A 2 A 0", "1 G 1 G 0", "10 B 1 B 0", "10 C 9 C 0"}, {"10 2 99 1 32767 0"}));
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1));
    EXPECT_EQ(SkippedOf(*reader), 1);
}

TEST(Combinations, LineOfADisabledCaseIsIgnored)
{
    const auto reader =
        WithCombinations({"10 2 99 1 32767 0", "10 2 1 1 32767 0", "10 2 99 1 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader), IsEmpty());
    EXPECT_EQ(SkippedOf(*reader), 1);
}

TEST(Combinations, LaterLineOfANumberReplacesTheEarlier)
{
    const auto reader = WithCombinations(
        {"10 2 1 1 32767 0", "11 2 1 2 32767 0", "10 2 2 3 3 4 32767 0", "10 2 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader),
                ElementsAre(Combination{10, {{2, 3}, {3, 4}}}, Combination{11, {{1, 2}}}));
}

TEST(Combinations, StoredOneStaysWhenALaterLineOfItsNumberIsAbandoned)
{
    const auto reader = WithCombinations({"10 2 1 1 32767 0", "10 2 99 1 32767 0"});
    EXPECT_THAT(CombinationsOf(*reader), ElementsAre(Combination{10, {{1, 1}}}));
    EXPECT_EQ(SkippedOf(*reader), 1);
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1, 2, 3, 11, 12, 13));
}

TEST(Combinations, RefusedLoadsOfACaseDoNotTouchThem)
{
    const auto reader =
        Imported(LoadModel(kCombinedCases, {"10 2 1 1 32767 0"})
                     .Elements({"8 1 0 0 0 0 0 0 1 0 0 -1 0 0", "8 2 0 0 0 0 0 0 1 0 0 -2 0 0"}));
    EXPECT_THAT(CombinationsOf(*reader), ElementsAre(Combination{10, {{1, 1}}}));
    EXPECT_EQ(SkippedOf(*reader), 0);
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(2, 3, 10, 11, 12, 13));
}

TEST(Combinations, SkippedOnesAreCountedPerImport)
{
    const auto reader = WithCombinations({"10 2 99 1 32767 0", "11 2 99 1 32767 0"});
    EXPECT_EQ(SkippedOf(*reader), 2);
    ASSERT_EQ(ImportText(*reader, LoadModel(kCombinedCases, {"10 2 99 1 32767 0"})), S_OK);
    EXPECT_EQ(SkippedOf(*reader), 1);
    ASSERT_EQ(ImportText(*reader, ModelText()), S_OK);
    EXPECT_EQ(SkippedOf(*reader), 0);
}

TEST(Combinations, SecondImportReplacesByNumberAndKeepsTheRest)
{
    const auto reader = WithCombinations({"10 2 1 1 32767 0", "11 2 1 2 32767 0"});
    ASSERT_EQ(
        ImportText(*reader, LoadModel(kCombinedCases, {"12 2 1 3 32767 0", "10 2 1 4 32767 0"})),
        S_OK);
    EXPECT_THAT(CombinationsOf(*reader),
                ElementsAre(Combination{10, {{1, 4}}}, Combination{11, {{1, 2}}},
                            Combination{12, {{1, 3}}}));
}

TEST(Combinations, SecondImportAsksItsOwnCases)
{
    const auto reader = WithCombinations({"10 2 1 1 32767 0"});
    ASSERT_EQ(ImportText(*reader, LoadModel({"5 X 1 X 0", "20 C 2 C 0"},
                                            {"20 2 1 1 32767 0", "10 2 5 1 32767 0"})),
              S_OK);
    EXPECT_THAT(CombinationsOf(*reader), ElementsAre(Combination{10, {{1, 1}}}));
    EXPECT_EQ(SkippedOf(*reader), 1);
}

}  // namespace
}  // namespace tamur::test
