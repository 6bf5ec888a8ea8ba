#include "model/case_table.h"

#include <gtest/gtest.h>

namespace tamur {
namespace {

LoadCase Case(std::int32_t number, std::uint8_t type)
{
    LoadCase loadCase;
    loadCase.number = number;
    loadCase.type = type;
    return loadCase;
}

// Models live long and their cases are read once.
TEST(CaseTable, KeepsNoSpareCapacity)
{
    CaseTable table;
    for (std::int32_t number = 0; number < 33; ++number) {
        table.Append(Case(number, case_type::kStatic));
    }
    table.Finish();
    EXPECT_EQ(table.Cases().size(), 33u);
    EXPECT_EQ(table.Cases().capacity(), 33u);
}

TEST(CaseTable, FindsTheFirstOfANumberAndDisablesAll)
{
    CaseTable table;
    table.Append(Case(3, case_type::kCombination));
    table.Append(Case(-1, case_type::kModal));
    table.Append(Case(3, case_type::kStatic));
    table.Finish();
    EXPECT_EQ(table.GetCasType(3), case_type::kCombination);
    EXPECT_EQ(table.GetCasType(-1), case_type::kModal);
    EXPECT_EQ(table.GetCasType(0), case_type::kDisabled);
    EXPECT_EQ(table.GetCasType(4), case_type::kDisabled);
    for (int times = 0; times < 2; ++times) {
        table.DisableCas(3);
        EXPECT_EQ(table.GetCasType(3), case_type::kDisabled);
        EXPECT_EQ(table.Cases()[0].type, case_type::kDisabled);
        EXPECT_EQ(table.Cases()[1].type, case_type::kModal);
        EXPECT_EQ(table.Cases()[2].type, case_type::kDisabled);
    }
}

TEST(CaseTable, CarriersAreStaticCasesAndThoseOfTheKind)
{
    CaseTable table;
    table.Append(Case(1, case_type::kCombination));
    table.Append(Case(1, case_type::kStatic));
    table.Append(Case(2, case_type::kThermal));
    table.Finish();
    LoadCase* const carrier = table.FindCarrier(1, case_type::kSelfWeight);
    ASSERT_EQ(carrier, &table.Cases()[1]);
    carrier->type = case_type::kSelfWeight;
    EXPECT_EQ(table.FindCarrier(1, case_type::kSelfWeight), carrier);
    EXPECT_EQ(table.FindCarrier(1, case_type::kThermal), nullptr);
    EXPECT_EQ(table.FindCarrier(2, case_type::kThermal), &table.Cases()[2]);
    EXPECT_EQ(table.FindCarrier(2, case_type::kSelfWeight), nullptr);
    EXPECT_EQ(table.FindCarrier(9, case_type::kSelfWeight), nullptr);
}

}  // namespace
}  // namespace tamur
