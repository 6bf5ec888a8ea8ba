#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "conformance/load_model.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A seismic line in its parts; every part can be replaced.
struct SeismicLine {
    std::string number = "7";
    std::string flags = "O N N";
    std::string head = "mot 0.5 0.8 0.9 O 2 3 0.25";  // two columns skipped, and the last
    std::string spectrum = "0.1 2.5 0.5 2.5 inf inf";
    int skippedWords = 39;
    // Work class, ductility, soil layer, two words, site, risk, a word, soil, topography, zone,
    // limitation of dampings.
    std::string tail = "4 1.5 12.5 mot mot 5 O mot 6 1.25 7 O";

    [[nodiscard]] std::string Text() const
    {
        std::string text = number + " 4 " + flags + " " + head + " " + spectrum;
        for (int i = 0; i < skippedWords; ++i) text += i % 2 == 0 ? " mot" : " 8";
        return text + " " + tail;
    }
};

Record<TMRChargeSismique> SeismicOf(const std::string& line)
{
    const auto reader = Imported(LoadModel({"7 Seisme 4 S 0"}, {line}));
    const auto seismic = ChargesSismiques(*reader);
    EXPECT_EQ(seismic.Size(), 1);
    return seismic.At(0);
}

Record<TMRChargeSismique> SeismicOf(const SeismicLine& line)
{
    return SeismicOf(line.Text());
}

std::vector<double> PeriodsOf(const Record<TMRChargeSismique>& seismic)
{
    EXPECT_NE(seismic->pPeriodsSpectrum, nullptr);
    return Values(seismic->pPeriodsSpectrum, seismic->iPointsSpectrum);
}

std::vector<double> AccelerationsOf(const Record<TMRChargeSismique>& seismic)
{
    EXPECT_NE(seismic->pAccelerationSpectrum, nullptr);
    return Values(seismic->pAccelerationSpectrum, seismic->iPointsSpectrum);
}

// What is before the spectrum, without the direction.
std::vector<double> HeadOf(const Record<TMRChargeSismique>& seismic)
{
    return {seismic->dDisplacementsReductionCoeff, seismic->dForcesReductionCoeff,
            static_cast<double>(seismic->bReductionCoeffCalculation),
            static_cast<double>(seismic->iSignChoice), static_cast<double>(seismic->iMode)};
}

// What follows it, in the order of the line.
std::vector<double> TailOf(const Record<TMRChargeSismique>& seismic)
{
    return {static_cast<double>(seismic->iWorkClass),
            seismic->dDuctilityCoeff,
            seismic->dLayerOfSoil,
            static_cast<double>(seismic->iSite),
            static_cast<double>(seismic->bRisk),
            static_cast<double>(seismic->iKinfOfSoil),
            seismic->dTopographicCoeff,
            static_cast<double>(seismic->iZone),
            static_cast<double>(seismic->bDampingsLimitation)};
}

void ExpectWholeTail(const Record<TMRChargeSismique>& seismic)
{
    EXPECT_THAT(TailOf(seismic), ElementsAre(4, 1.5, 12.5, 5, 1, 6, 1.25, 7, 1));
}

void ExpectNoTail(const Record<TMRChargeSismique>& seismic)
{
    EXPECT_THAT(TailOf(seismic), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(SeismicCases, LineFillsEveryField)
{
    const auto seismic = SeismicOf(SeismicLine{});
    EXPECT_EQ(seismic->lIdentifier, 0);
    EXPECT_EQ(seismic->iNumCas, 7);
    EXPECT_EQ(seismic->iDirection, 0);
    EXPECT_THAT(HeadOf(seismic), ElementsAre(0.8, 0.9, 1, 2, 3));
    EXPECT_THAT(PeriodsOf(seismic), ElementsAre(0.1, 0.5));
    EXPECT_THAT(AccelerationsOf(seismic), ElementsAre(2.5, 2.5));
    ExpectWholeTail(seismic);
}

struct Direction {
    const char* flags;
    int direction;
};

TEST(SeismicCases, DirectionComesFromTheFirstTwoFlags)
{
    for (const Direction& expected :
         {Direction{"O N N", 0}, Direction{"N O N", 1}, Direction{"N N O", 2},
          Direction{"N N N", 2}, Direction{"O O O", 0}, Direction{"N O O", 1},
          Direction{"o o O", 2}, Direction{"1 O N", 1}, Direction{"NON", 1}}) {
        SCOPED_TRACE(expected.flags);
        const auto seismic = SeismicOf(SeismicLine{.flags = expected.flags});
        EXPECT_EQ(seismic->iDirection, expected.direction);
        ExpectWholeTail(seismic);
    }
}

TEST(SeismicCases, OtherFlagsAreYesOnlyForCapitalO)
{
    const auto seismic = SeismicOf(SeismicLine{.head = "mot 0.5 0.8 0.9 o 2 3 0.25",
                                               .tail = "4 1.5 12.5 mot mot 5 N mot 6 1.25 7 1"});
    EXPECT_THAT(HeadOf(seismic), ElementsAre(0.8, 0.9, 0, 2, 3));
    EXPECT_THAT(TailOf(seismic), ElementsAre(4, 1.5, 12.5, 5, 0, 6, 1.25, 7, 0));
}

TEST(SeismicCases, PairWithTheEndWordIsConsumedAndNotStored)
{
    for (const char* end : {"inf inf", "inf 3", "3 inf", "inf mot"}) {
        SCOPED_TRACE(end);
        const auto seismic = SeismicOf(SeismicLine{.spectrum = std::string("0.1 2.5 ") + end});
        EXPECT_THAT(PeriodsOf(seismic), ElementsAre(0.1));
        EXPECT_THAT(AccelerationsOf(seismic), ElementsAre(2.5));
        ExpectWholeTail(seismic);
    }
}

TEST(SeismicCases, OnlyTheExactEndWordEndsTheSpectrum)
{
    for (const char* word : {"INF", "Inf", "infini", "inf,", "-inf"}) {
        SCOPED_TRACE(word);
        const auto seismic =
            SeismicOf(SeismicLine{.spectrum = std::string(word) + " 1 2 3 inf inf"});
        EXPECT_EQ(seismic->iPointsSpectrum, 2);
        EXPECT_EQ(AccelerationsOf(seismic)[0], 1);
        ExpectWholeTail(seismic);
    }
}

TEST(SeismicCases, SpectrumMayBeEmpty)
{
    const auto seismic = SeismicOf(SeismicLine{.spectrum = "inf inf"});
    EXPECT_EQ(seismic->iPointsSpectrum, 0);
    EXPECT_THAT(PeriodsOf(seismic), IsEmpty());
    EXPECT_THAT(AccelerationsOf(seismic), IsEmpty());
    ExpectWholeTail(seismic);
}

TEST(SeismicCases, SpectrumWordsAreConvertedAsFarAsTheyAreNumbers)
{
    const auto seismic =
        SeismicOf(SeismicLine{.spectrum = "abc 2.5 1.5s - +.5 1e-1 1,5 2e+ inf inf"});
    EXPECT_THAT(PeriodsOf(seismic), ElementsAre(0, 1.5, 0.5, 1));
    EXPECT_THAT(AccelerationsOf(seismic), ElementsAre(2.5, 0, 0.1, 2));
    ExpectWholeTail(seismic);
}

TEST(SeismicCases, SpectrumKeepsFileOrderAndMayBeLong)
{
    constexpr int kPoints = 4000;
    std::string spectrum;
    for (int i = 0; i < kPoints; ++i) {
        spectrum += std::to_string(kPoints - i) + " " + std::to_string(i) + " ";
    }
    const auto seismic = SeismicOf(SeismicLine{.spectrum = spectrum + "inf inf"});
    ASSERT_EQ(seismic->iPointsSpectrum, kPoints);
    for (int i = 0; i < kPoints; ++i) {
        ASSERT_EQ(seismic->pPeriodsSpectrum[i], kPoints - i);
        ASSERT_EQ(seismic->pAccelerationSpectrum[i], i);
    }
    ExpectWholeTail(seismic);
}

TEST(SeismicCases, ThirtyNineWordsAreSkippedAfterTheSpectrum)
{
    // One word fewer, and the first number of the tail is skipped with the words.
    const auto less = SeismicOf(SeismicLine{.skippedWords = 38, .tail = "99 4 1.5 12.5"});
    EXPECT_EQ(less->iWorkClass, 4);
    EXPECT_EQ(less->dLayerOfSoil, 12.5);
    // One more, a number, and it is where the work class is read.
    const auto more = SeismicOf(SeismicLine{.tail = "99 4 1.5"});
    EXPECT_EQ(more->iWorkClass, 99);
    EXPECT_EQ(more->dDuctilityCoeff, 4);
}

TEST(SeismicCases, SkippedWordsMayBeAnything)
{
    SeismicLine line;
    line.skippedWords = 36;
    line.tail = "inf O 1e999 " + line.tail;
    ExpectWholeTail(SeismicOf(line));
}

TEST(SeismicCases, SkippedWordsMayBeLong)
{
    for (const std::size_t length : {255u, 256u, 5000u}) {
        const std::string word(length, 'w');
        std::string line = "7 4 O N N " + word + " 0 1.5 2.5 N 3 4 0 0.5 1.25 inf inf";
        for (int i = 0; i < 38; ++i) line += " w";
        line += " " + word + " 6 1.5 2.5 " + word + " " + word + " 3 O " + word + " 4 5.5 2 O";
        const auto seismic = SeismicOf(line);
        EXPECT_EQ(seismic->iPointsSpectrum, 1) << length;
        EXPECT_EQ(seismic->iWorkClass, 6) << length;
        EXPECT_EQ(seismic->iSite, 3) << length;
        EXPECT_EQ(seismic->dTopographicCoeff, 5.5) << length;
        EXPECT_EQ(seismic->bDampingsLimitation, 1) << length;
    }
}

TEST(SeismicCases, SpectrumThatEndsTheLineLeavesTheTailZero)
{
    const auto seismic = SeismicOf("7 4 N O N mot 0.5 0.8 0.9 O 2 3 0.25 0.1 2.5 0.5 3.5");
    EXPECT_EQ(seismic->iDirection, 1);
    EXPECT_THAT(PeriodsOf(seismic), ElementsAre(0.1, 0.5));
    EXPECT_THAT(AccelerationsOf(seismic), ElementsAre(2.5, 3.5));
    ExpectNoTail(seismic);
}

TEST(SeismicCases, MissingWordOfTheLastPairIsZero)
{
    const auto seismic = SeismicOf("7 4 O N N mot 0.5 0.8 0.9 O 2 3 0.25 0.1 2.5 0.5");
    EXPECT_THAT(PeriodsOf(seismic), ElementsAre(0.1, 0.5));
    EXPECT_THAT(AccelerationsOf(seismic), ElementsAre(2.5, 0));
}

TEST(SeismicCases, EndWordWithoutAPartnerEndsTheSpectrum)
{
    const auto seismic = SeismicOf("7 4 O N N mot 0.5 0.8 0.9 O 2 3 0.25 0.1 2.5 inf");
    EXPECT_THAT(PeriodsOf(seismic), ElementsAre(0.1));
}

TEST(SeismicCases, ShortLineLeavesZeros)
{
    const auto bare = SeismicOf("7 4");
    EXPECT_EQ(bare->iNumCas, 7);
    EXPECT_THAT(HeadOf(bare), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_EQ(bare->iPointsSpectrum, 0);
    ExpectNoTail(bare);

    const auto head = SeismicOf("7 4 O N N mot 0.5 0.8 0.9");
    EXPECT_EQ(head->iDirection, 0);
    EXPECT_THAT(HeadOf(head), ElementsAre(0.8, 0.9, 0, 0, 0));
    EXPECT_EQ(head->iPointsSpectrum, 0);

    EXPECT_EQ(SeismicOf("7 4 O N N mot 0.5 0.8 0.9 O 2 3 0.25")->iPointsSpectrum, 0);
    ExpectNoTail(SeismicOf(SeismicLine{.skippedWords = 20, .tail = ""}));
    EXPECT_THAT(TailOf(SeismicOf(SeismicLine{.tail = "4 1.5 12.5 mot mot 5"})),
                ElementsAre(4, 1.5, 12.5, 5, 0, 0, 0, 0, 0));
}

TEST(SeismicCases, UnreadableColumnEndsTheLine)
{
    const auto head = SeismicOf(SeismicLine{.head = "mot 0.5 0.8 x O 2 3 0.25"});
    EXPECT_THAT(HeadOf(head), ElementsAre(0.8, 0, 0, 0, 0));
    EXPECT_EQ(head->iPointsSpectrum, 0);
    ExpectNoTail(head);

    EXPECT_EQ(SeismicOf(SeismicLine{.head = "mot x 0.8 0.9 O 2 3 0.25"})->dForcesReductionCoeff, 0);
    EXPECT_THAT(TailOf(SeismicOf(SeismicLine{.tail = "4 1.5 x mot mot 5 O mot 6 1.25 7 O"})),
                ElementsAre(4, 1.5, 0, 0, 0, 0, 0, 0, 0));
}

TEST(SeismicCases, KeepFileOrderAndAreNotCheckedAgainstTheCases)
{
    const auto reader =
        Imported(LoadModel({"7 Seisme 4 S 0", "1 G 1 G 0"},
                           {SeismicLine{.number = "99"}.Text(), SeismicLine{.number = "1"}.Text(),
                            SeismicLine{.number = "1"}.Text()}));
    std::vector<int> numbers;
    for (const auto& seismic : ChargesSismiques(*reader)) numbers.push_back(seismic->iNumCas);
    EXPECT_THAT(numbers, ElementsAre(99, 1, 1));
}

}  // namespace
}  // namespace tamur::test
