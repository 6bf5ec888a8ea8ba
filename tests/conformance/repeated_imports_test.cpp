// Many imports into one reader give what one would expect of each after the other.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "models/load_case_models.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

constexpr int kImports = 40;
constexpr int kManyCases = 60;

// Combinations of case 0 with the factor of their import, some of them with numbers that earlier
// imports had, in an order that changes.
ModelText Combinations(int import, std::map<LONG, double>& expected)
{
    std::vector<std::string> cases = {"0 G 1 G 0"}, parameters;
    for (int i = 0; i < kManyCases; ++i) {
        const int number = 1 + (import * 31 + i * (import % 2 == 0 ? 7 : -7) + 1000) % 500;
        cases.push_back(std::to_string(number) + " C 2 E 0");
        parameters.push_back(std::to_string(number) + " 2 0 " + std::to_string(import) +
                             " 32767 0");
        expected[number] = import;
    }
    return ModelText().Section("#Cas", cases).Section("#TAB_PARAM_CAS", parameters);
}

TEST(RepeatedImports, KeepTheLastCombinationOfEachCase)
{
    const auto reader = NewReader();
    std::map<LONG, double> expected;
    for (int import = 0; import < kImports; ++import) {
        ASSERT_EQ(ImportText(*reader, Combinations(import, expected)), S_OK);
        const auto combinations = Combinaisons(*reader);
        ASSERT_EQ(combinations.Size(), static_cast<LONG>(expected.size()));
        LONG rank = 0;
        for (const auto& [number, factor] : expected) {
            const auto combination = combinations.At(rank++);
            ASSERT_EQ(combination->iNumCas, number);
            ASSERT_EQ(combination->pCoeff[0], factor);
        }
    }
}

// Each import takes the first load away that is left of case 1, and leaves one of its own.
TEST(RepeatedImports, TakeTheFirstLoadsAwayAndKeepTheOrderOfTheOthers)
{
    const auto reader = NewReader();
    std::vector<LONG> expected;
    for (LONG import = 0; import < kImports; ++import) {
        const LONG first = 10 * import;
        std::vector<std::string> lines;
        for (LONG i = 0; i < 9; ++i) {
            const int caseNumber = i % 3 == 0 && i < 6 ? 1 : 2;
            lines.push_back(SelfWeightLine(caseNumber, "0 0 -1", first + i));
            expected.push_back(first + i);
        }
        lines.push_back(ThermalLine(1));
        ASSERT_EQ(
            ImportText(*reader,
                       ModelText().Section("#Cas", {"1 G 1 G 0", "2 H 1 H 0"}).Elements(lines)),
            S_OK);
        // Of case 1 there are those with 0 and 3, of every import; the first of all goes.
        const LONG gone = 10 * (import / 2) + (import % 2 == 0 ? 0 : 3);
        std::erase(expected, gone);
        std::vector<LONG> identifiers;
        for (const auto& load : ChargesPoidsPropre(*reader)) {
            identifiers.push_back(load->identifier);
        }
        ASSERT_EQ(identifiers, expected) << import;
        ASSERT_EQ(ChargesThermiques(*reader).Size(), 0);
    }
    EXPECT_EQ(Messages(*reader).size(), 2u * kImports);
}

}  // namespace
}  // namespace tamur::test
