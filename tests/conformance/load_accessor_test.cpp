// The accessor that serves all loads, combinations, envelopes and the modal parameters.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "models/every_table.h"
#include "conformance/load_model.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;

std::vector<LONG> CountsOf(ITMRChargeAccessor& loads)
{
    std::vector<LONG> counts;
    for (const auto count :
         {&ITMRChargeAccessor::GetNbChargesPonctuelles, &ITMRChargeAccessor::GetNbChargesLineaires,
          &ITMRChargeAccessor::GetNbChargesSurfaciques,
          &ITMRChargeAccessor::GetNbChargesPoidsPropre, &ITMRChargeAccessor::GetNbChargesThermiques,
          &ITMRChargeAccessor::GetNbChargesSismiques, &ITMRChargeAccessor::GetNbCombinaisons,
          &ITMRChargeAccessor::GetNbEnveloppes}) {
        LONG value = -1;
        EXPECT_EQ((loads.*count)(&value), S_OK);
        counts.push_back(value);
    }
    return counts;
}

int SkippedOf(ITMRChargeAccessor& loads)
{
    int count = -1;
    EXPECT_EQ(loads.GetNbCombinaisonsSkipped(&count), S_OK);
    return count;
}

TEST(LoadAccessor, BeforeAnyImportEverythingIsEmpty)
{
    const auto reader = NewReader();
    const auto loads = Loads(*reader);
    EXPECT_THAT(CountsOf(*loads), ElementsAre(0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(SkippedOf(*loads), 0);
}

// Each table with another number of records, so that no two can be taken for each other.
TEST(LoadAccessor, CountsEachTable)
{
    std::vector<std::string> parameters = {"20 2 99 1 32767 0"};
    std::vector<std::string> elements;
    const auto repeat = [](std::vector<std::string>& lines, int times, const std::string& line) {
        lines.insert(lines.end(), static_cast<std::size_t>(times), line);
    };
    repeat(elements, 1, ElementLine(5).Points({"0 0 0"}).Columns("1 1"));
    repeat(elements, 2, ElementLine(6).Points({"0 0 0", "1 0 0"}).Columns("1 1"));
    repeat(elements, 3, ElementLine(7).Columns("1 1"));
    repeat(elements, 4, ElementLine(8).Columns("1 0 0 -1"));
    repeat(elements, 5, ElementLine(13).Columns("2 15"));
    repeat(parameters, 6, "7 4 N N N");
    for (int number = 11; number <= 17; ++number) {
        parameters.push_back(std::to_string(number) + " 2 1 1 32767 0");
    }
    repeat(parameters, 8, "7 9 1");

    std::vector<std::string> cases = {"1 A 1 a 0", "2 B 1 b 0", "20 X 2 x 0"};
    for (int number = 11; number <= 17; ++number) {
        cases.push_back(std::to_string(number) + " C 2 c 0");
    }
    const auto reader = Imported(LoadModel(cases, parameters).Elements(elements));
    const auto loads = Loads(*reader);
    EXPECT_THAT(CountsOf(*loads), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
    EXPECT_EQ(SkippedOf(*loads), 1);
}

TEST(LoadAccessor, SeesWhatLaterImportsAddButKeepsItsSkippedCount)
{
    const auto model =
        LoadModel({"1 G 1 G 0", "10 C 2 C 0", "11 D 2 D 0"},
                  {"10 2 1 1 32767 0", "11 2 99 1 32767 0", "5 3 0 10 20 30", "7 4 N N N", "7 9 1"})
            .Elements({ElementLine(5).Points({"0 0 0"}).Columns("1 1")});
    const auto reader = NewReader();
    const auto before = Loads(*reader);
    ASSERT_EQ(ImportText(*reader, model), S_OK);
    EXPECT_THAT(CountsOf(*before), ElementsAre(1, 0, 0, 0, 0, 1, 1, 1));
    EXPECT_EQ(SkippedOf(*before), 0);
    Record<TMRModes> modes;
    ASSERT_EQ(before->GetModes(modes.Put()), S_OK);
    EXPECT_EQ(modes->dPercentY, 20);

    const auto between = Loads(*reader);
    ASSERT_EQ(ImportText(*reader, ModelText()), S_OK);
    EXPECT_EQ(SkippedOf(*between), 1);
    EXPECT_EQ(SkippedOf(*Loads(*reader)), 0);
    EXPECT_EQ(SkippedOf(*before), 0);
}

// ------------------------------------------------------------------ self-weight and thermal loads

template <class Load>
using GetLoad = HRESULT (STDMETHODCALLTYPE ITMRChargeAccessor::*)(LONG, Load*);

template <class Load>
void ExpectGroupNumberAndTypeKept(GetLoad<Load> get)
{
    const auto reader = Imported(EveryTable());
    const auto loads = Loads(*reader);
    OLECHAR text = 0;
    for (const BSTR held : {BSTR{nullptr}, BSTR{&text}}) {
        Load load = {};
        load.GroupNumber = 77;
        load.ElementType = held;
        ASSERT_EQ((*loads.*get)(0, &load), S_OK);
        EXPECT_EQ(load.identifier, 7);
        EXPECT_EQ(load.GroupNumber, 77);
        EXPECT_EQ(load.ElementType, held);
    }
}

TEST(LoadAccessor, GroupNumberAndTypeOfSelfWeightLoadsStayWithTheCaller)
{
    ExpectGroupNumberAndTypeKept<TMRChargePoidsPropre>(
        &ITMRChargeAccessor::GetChargePoidsPropreAtRank);
}

TEST(LoadAccessor, GroupNumberAndTypeOfThermalLoadsStayWithTheCaller)
{
    ExpectGroupNumberAndTypeKept<TMRChargeThermique>(&ITMRChargeAccessor::GetChargeThermiqueAtRank);
}

// ------------------------------------------------------------------ combinations

// A combination for each of those numbers, in that order; its coefficient is its number.
ModelText CombinationsOf(const std::vector<int>& numbers)
{
    std::vector<std::string> cases = {"1 G 1 G 0"};
    std::vector<std::string> parameters;
    for (const int number : numbers) {
        const std::string text = std::to_string(number);
        cases.push_back(text + " C 2 C 0");
        parameters.push_back(text + " 2 1 " + text + " 32767 0");
    }
    return LoadModel(cases, parameters);
}

TEST(LoadAccessor, RanksOfCombinationsAscendByCaseNumber)
{
    const auto reader = Imported(CombinationsOf({12, 3, -4, 7}));
    const auto combinations = Combinaisons(*reader);
    std::vector<double> seen;
    for (const auto& combination : combinations) {
        EXPECT_EQ(combination->iNumCas, combination->pCoeff[0]);
        seen.push_back(combination->pCoeff[0]);
    }
    EXPECT_THAT(seen, ElementsAre(-4, 3, 7, 12));
}

TEST(LoadAccessor, CombinationsAreFoundByCaseNumber)
{
    const auto reader = Imported(CombinationsOf({7, 3}));
    const auto loads = Loads(*reader);
    for (const LONG number : {3, 7, 3}) {
        Record<TMRCombinaison> found;
        ASSERT_EQ(loads->GetCombinaisonOfCasNum(number, found.Put()), S_OK);
        EXPECT_EQ(found->iNumCas, number);
        EXPECT_THAT(Values(found->pNumCas, found->iNbCmb), ElementsAre(1));
        EXPECT_THAT(Values(found->pCoeff, found->iNbCmb), ElementsAre(number));
    }
}

TEST(LoadAccessor, CaseNumberWithoutACombinationGivesFailureAndWritesNothing)
{
    const auto reader = Imported(CombinationsOf({7, 3}));
    const auto loads = Loads(*reader);
    for (const LONG number : {LONG{5}, LONG{0}, LONG{1}, LONG{2}, LONG{8}, LONG{-3},
                              std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()}) {
        TMRCombinaison record;
        std::memset(&record, 0xA5, sizeof record);
        const TMRCombinaison before = record;
        EXPECT_EQ(loads->GetCombinaisonOfCasNum(number, &record), E_FAIL) << number;
        EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0) << number;
    }
    TMRCombinaison record = {};
    EXPECT_EQ(Loads(*NewReader())->GetCombinaisonOfCasNum(0, &record), E_FAIL);
}

// Reading by rank may keep its place between calls; nothing of that may show.
TEST(LoadAccessor, CombinationsMayBeReadInAnyOrder)
{
    constexpr int kCount = 500;
    std::vector<int> numbers;
    for (int i = 0; i < kCount; ++i) numbers.push_back(2 + i * 7 % kCount);  // 7 and 500: coprime
    const auto reader = Imported(CombinationsOf(numbers));
    const auto combinations = Combinaisons(*reader);
    ASSERT_EQ(combinations.Size(), kCount);
    for (LONG rank = 0; rank < kCount; ++rank) {
        ASSERT_EQ(combinations.At(rank)->iNumCas, 2 + rank);
    }
    for (LONG rank = kCount - 1; rank >= 0; --rank) {
        ASSERT_EQ(combinations.At(rank)->iNumCas, 2 + rank);
    }
    for (LONG i = 0; i < kCount; ++i) {
        const LONG rank = i * 321 % kCount;
        ASSERT_EQ(combinations.At(rank)->iNumCas, 2 + rank);
    }
}

TEST(LoadAccessor, RanksFollowWhenAnImportPutsCombinationsInBetween)
{
    const auto reader = Imported(CombinationsOf({10, 30}));
    const auto combinations = Combinaisons(*reader);
    EXPECT_EQ(combinations.At(1)->iNumCas, 30);
    ASSERT_EQ(ImportText(*reader, CombinationsOf({20, 5, 30})), S_OK);
    std::vector<int> numbers;
    for (const auto& combination : combinations) numbers.push_back(combination->iNumCas);
    EXPECT_THAT(numbers, ElementsAre(5, 10, 20, 30));
}

}  // namespace
}  // namespace tamur::test
