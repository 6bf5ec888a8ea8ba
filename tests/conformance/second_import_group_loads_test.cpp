// Loads on groups that one import left count when the next import compares loads.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "conformance/load_model.h"
#include "models/load_case_models.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<double> VerticalValues(ITAMURStructureReader& reader)
{
    std::vector<double> values;
    for (const auto& load : ChargesPoidsPropre(reader)) values.push_back(load->dZ);
    return values;
}

ModelText OneCase(const std::vector<std::string>& lines)
{
    return ModelText().Section("#Cas", {"1 G 1 G 0", "2 H 1 H 0"}).Elements(lines);
}

// A thermal load in a case with two self-weight loads takes the first of them away; the second
// stays with the disabled case.
ComPtr<ITAMURStructureReader> ReaderWithALoadLeft()
{
    return Imported(OneCase(
        {SelfWeightLine(1, "0 0 -1"), SelfWeightLine(1, "0 0 -1"), ThermalLine(1, "20 0 0")}));
}

TEST(LoadsLeftBehind, AreTheFirstOfTheirCase)
{
    const auto reader = ReaderWithALoadLeft();
    EXPECT_THAT(VerticalValues(*reader), ElementsAre(-1));
    // The first of the import makes the case one of self-weight, whatever its values; the second
    // is compared with the one that was left.
    ASSERT_EQ(
        ImportText(*reader, OneCase({SelfWeightLine(1, "0 0 -2"), SelfWeightLine(1, "0 0 -2")})),
        S_OK);
    EXPECT_THAT(VerticalValues(*reader), IsEmpty());
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(2));
    EXPECT_THAT(Messages(*reader),
                ElementsAre(ThermalWarning(1), SelfWeightWarning(1), SelfWeightWarning(1)));
}

TEST(LoadsLeftBehind, AreEqualToLoadsOfTheirValues)
{
    const auto reader = ReaderWithALoadLeft();
    ASSERT_EQ(
        ImportText(*reader, OneCase({SelfWeightLine(2, "0 0 -5"), SelfWeightLine(1, "0 0 -1"),
                                     SelfWeightLine(1, "0 0 -1"), SelfWeightLine(2, "0 0 -5")})),
        S_OK);
    EXPECT_THAT(VerticalValues(*reader), ElementsAre(-1, -5, -1, -1, -5));
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1, 2));
}

TEST(LoadsLeftBehind, GoWithTheirCase)
{
    const auto reader = ReaderWithALoadLeft();
    ASSERT_EQ(ImportText(*reader, OneCase({SelfWeightLine(2, "0 0 -5"), ThermalLine(1, "20 0 0"),
                                           SelfWeightLine(1, "0 0 -1")})),
              S_OK);
    EXPECT_THAT(VerticalValues(*reader), ElementsAre(-5));
    EXPECT_EQ(ChargesThermiques(*reader).Size(), 0);
}

}  // namespace
}  // namespace tamur::test
