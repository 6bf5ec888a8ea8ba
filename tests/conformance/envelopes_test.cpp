#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "conformance/load_model.h"

namespace tamur::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

// The record of the only envelope line.
Record<TMREnveloppe> EnvelopeOf(const std::string& line)
{
    const auto reader = Imported(LoadModel({"12 Env 9 E 0"}, {line}));
    const auto envelopes = Enveloppes(*reader);
    EXPECT_EQ(envelopes.Size(), 1);
    return envelopes.At(0);
}

std::vector<int> ParametersOf(const Record<TMREnveloppe>& envelope)
{
    return {envelope->iGrandeur,        envelope->iParamEnveloppeN, envelope->iParamEnveloppeA,
            envelope->iParamEnveloppeF, envelope->iParamEnveloppeS, envelope->iParamValeurN,
            envelope->iParamValeurA,    envelope->iParamValeurF,    envelope->iParamValeurS};
}

std::vector<int> CasesOf(const Record<TMREnveloppe>& envelope)
{
    EXPECT_NE(envelope->pCases, nullptr);
    return Values(envelope->pCases, envelope->iNbCases);
}

TEST(Envelopes, LineFillsEveryField)
{
    const auto envelope = EnvelopeOf("12 9 10 21 22 23 24 31 32 33 34 O 3 7 5 7");
    EXPECT_EQ(envelope->iNumCas, 12);
    EXPECT_THAT(ParametersOf(envelope), ElementsAre(10, 21, 22, 23, 24, 31, 32, 33, 34));
    EXPECT_EQ(envelope->bConserverCas, 1);
    EXPECT_THAT(CasesOf(envelope), ElementsAre(7, 5, 7));
}

TEST(Envelopes, OnlyCapitalOKeepsTheCase)
{
    for (const char* no : {"N", "o", "0", "1", "V"}) {
        SCOPED_TRACE(no);
        EXPECT_EQ(EnvelopeOf(std::string("12 9 1 1 1 1 1 1 1 1 1 ") + no + " 0")->bConserverCas, 0);
    }
}

TEST(Envelopes, MayHaveNoCases)
{
    const auto envelope = EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 0 4 5");
    EXPECT_EQ(envelope->iNbCases, 0);
    EXPECT_NE(envelope->pCases, nullptr);
}

// An envelope whose line ends with that number of cases, of which there are two.
void ExpectCountAndNoCases(const std::string& announced, int expected)
{
    SCOPED_TRACE(announced);
    const auto envelope = EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O " + announced + " 4 5");
    EXPECT_EQ(envelope->iNbCases, expected);
    EXPECT_NE(envelope->pCases, nullptr);
    EXPECT_EQ(envelope->iParamValeurS, 9);
    EXPECT_EQ(envelope->bConserverCas, 1);
}

TEST(Envelopes, NegativeCountIsKeptAndHasNoCases)
{
    ExpectCountAndNoCases("-1", -1);
    ExpectCountAndNoCases("-2147483648", -2147483647 - 1);
}

// A line has 49999 characters at most, so such a number cannot be meant.
TEST(Envelopes, CountBeyondAnyLineIsNone)
{
    ExpectCountAndNoCases("50000", 0);
    ExpectCountAndNoCases("2147483647", 0);
    ExpectCountAndNoCases("99999999999", 0);
}

TEST(Envelopes, CountBeyondTheLineIsKeptAndTheMissingCasesAreZero)
{
    std::vector<int> expected(40, 0);
    expected[0] = 7;
    EXPECT_EQ(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 40 7")), expected);
    expected.resize(49999, 0);
    EXPECT_EQ(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 49999 7")), expected);
    EXPECT_EQ(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 40")), std::vector<int>(40, 0));
}

// Nothing takes less room in a line than numbers that need no blank between them.
TEST(Envelopes, CasesMayBeGluedTogether)
{
    EXPECT_THAT(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 3 1-2+3")), ElementsAre(1, -2, 3));
    std::string line = "12 9 1 2 3 4 5 6 7 8 9 O 20000 1";
    for (int i = 1; i < 20000; ++i) line += "+1";
    EXPECT_EQ(CasesOf(EnvelopeOf(line)), std::vector<int>(20000, 1));
}

TEST(Envelopes, CasesThatTheLineDoesNotHoldAreZero)
{
    EXPECT_THAT(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 4 7 8")), ElementsAre(7, 8, 0, 0));
    EXPECT_THAT(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 3 7 x 8")), ElementsAre(7, 0, 0));
    EXPECT_THAT(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 O 3 7 99999999999 8")),
                ElementsAre(7, 0, 0));
}

TEST(Envelopes, ShortLineLeavesZeros)
{
    const auto bare = EnvelopeOf("12 9");
    EXPECT_EQ(bare->iNumCas, 12);
    EXPECT_THAT(ParametersOf(bare), Each(0));
    EXPECT_EQ(bare->bConserverCas, 0);
    EXPECT_EQ(bare->iNbCases, 0);

    EXPECT_THAT(ParametersOf(EnvelopeOf("12 9 10 21 22 23")),
                ElementsAre(10, 21, 22, 23, 0, 0, 0, 0, 0));
    EXPECT_THAT(ParametersOf(EnvelopeOf("12 9 10 21 x 23 24")),
                ElementsAre(10, 21, 0, 0, 0, 0, 0, 0, 0));
}

TEST(Envelopes, KeepFileOrderAndRepeatedNumbers)
{
    const auto reader =
        Imported(LoadModel({"12 Env 9 E 0"}, {"12 9 1", "3 9 2", "12 9 3", "99 9 4"}));
    std::vector<int> seen;
    for (const auto& envelope : Enveloppes(*reader)) {
        seen.push_back(envelope->iNumCas * 10 + envelope->iGrandeur);
    }
    EXPECT_THAT(seen, ElementsAre(121, 32, 123, 994));
}

TEST(Envelopes, NamedCasesAreNotChecked)
{
    EXPECT_THAT(CasesOf(EnvelopeOf("12 9 1 2 3 4 5 6 7 8 9 N 3 999 -1 12")),
                ElementsAre(999, -1, 12));
}

}  // namespace
}  // namespace tamur::test
