// Self-weight and thermal loads of case numbers that are in the file more than once, of large
// models, and of two imports into one reader.
#include <gmock/gmock.h>

#include "models/load_case_models.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Types of the cases that are not disabled.
std::vector<int> TypesOf(ITAMURStructureReader& reader)
{
    std::vector<int> types;
    for (const auto& loadCase : Cas(reader)) types.push_back(loadCase->Type);
    return types;
}

TEST(RepeatedCases, FirstStaticOneTakesTheLoad)
{
    const auto reader = ImportedLoads({"1 C 2 C 0", "1 G 1 G 0", "1 Q 1 Q 0"}, {SelfWeightLine(1)});
    EXPECT_THAT(TypesOf(*reader), ElementsAre(2, 12, 1));
    EXPECT_THAT(Messages(*reader), IsEmpty());
}

TEST(RepeatedCases, CaseWithLoadsStopsTheSearchForAStaticOne)
{
    const auto reader =
        ImportedLoads({"1 G 1 G 0", "1 Q 1 Q 0"}, {SelfWeightLine(1), SelfWeightLine(1)});
    EXPECT_THAT(TypesOf(*reader), ElementsAre(12, 1));
    EXPECT_EQ(ChargesPoidsPropre(*reader).Size(), 2);
}

TEST(RepeatedCases, RefusalDisablesAllOfThem)
{
    const auto reader = ImportedLoads({"1 G 1 G 0", "2 X 1 X 0", "1 Q 1 Q 0", "1 C 2 C 0"},
                                      {SelfWeightLine(1, "0 0 -1"), SelfWeightLine(1, "0 0 -2")});
    EXPECT_THAT(TypesOf(*reader), ElementsAre(1));
    EXPECT_EQ(Cas(*reader).At(0)->Num, 2);
    EXPECT_THAT(Messages(*reader), ElementsAre(SelfWeightWarning(1)));
}

// A second static case of the number takes the loads of the other sort.
TEST(RepeatedCases, LetBothSortsStandSideBySide)
{
    const auto reader =
        ImportedLoads({"1 G 1 G 0", "1 Q 1 Q 0"},
                      {SelfWeightLine(1), ThermalLine(1), SelfWeightLine(1), ThermalLine(1)});
    EXPECT_THAT(TypesOf(*reader), ElementsAre(12, 13));
    EXPECT_EQ(ChargesPoidsPropre(*reader).Size(), 2);
    EXPECT_EQ(ChargesThermiques(*reader).Size(), 2);
    EXPECT_THAT(Messages(*reader), IsEmpty());
}

TEST(ManyLoads, KeepTheirOrderWhenOtherCasesAreRefused)
{
    constexpr int kCases = 500;
    std::vector<std::string> cases, lines, warnings;
    std::vector<LONG> kept;
    for (int number = 1; number <= kCases; ++number) {
        cases.push_back(std::to_string(number) + " G 1 G 0");
        lines.push_back(SelfWeightLine(number, "0 0 -1", number));
        if (number % 2 != 0) kept.push_back(number);
    }
    for (int number = 1; number <= kCases; ++number) {
        const bool isRefused = number % 2 == 0;
        lines.push_back(SelfWeightLine(number, isRefused ? "0 0 -2" : "0 0 -1", kCases + number));
        if (isRefused) {
            warnings.push_back(SelfWeightWarning(number));
        } else {
            kept.push_back(kCases + number);
        }
    }
    const auto reader = ImportedLoads(cases, lines);
    std::vector<LONG> identifiers;
    for (const auto& load : ChargesPoidsPropre(*reader)) identifiers.push_back(load->identifier);
    EXPECT_EQ(identifiers, kept);
    EXPECT_EQ(Messages(*reader), warnings);
}

TEST(LoadsOfTwoImports, AreTakenByTheCasesOfTheirOwnFile)
{
    const auto reader = ImportedLoads({"1 G 1 G 0"}, {SelfWeightLine(1, "0 0 -1", 10)});
    ASSERT_EQ(
        ImportText(
            *reader,
            ModelText().Section("#Cas", {"1 T 1 T 0"}).Elements({ThermalLine(1, "20 0 0", 20)})),
        S_OK);
    EXPECT_THAT(TypesOf(*reader), ElementsAre(13));  // read afresh, so static again
    EXPECT_EQ(ChargesPoidsPropre(*reader).Size(), 1);
    EXPECT_EQ(ChargesThermiques(*reader).Size(), 1);
    EXPECT_THAT(Messages(*reader), IsEmpty());
}

TEST(LoadsOfTwoImports, AreComparedWithTheFirstOfBoth)
{
    const auto reader = ImportedLoads({"1 G 1 G 0", "2 Q 1 Q 0"},
                                      {SelfWeightLine(1, "0 0 -1"), SelfWeightLine(2, "0 0 -1")});
    const auto second = [](const std::vector<std::string>& lines) {
        return ModelText().Section("#Cas", {"1 G 1 G 0"}).Elements(lines);
    };

    // The first load of a static case is accepted unseen, the next is compared.
    ASSERT_EQ(ImportText(*reader, second({SelfWeightLine(1, "0 0 -2")})), S_OK);
    EXPECT_EQ(ChargesPoidsPropre(*reader).Size(), 3);
    EXPECT_THAT(Messages(*reader), IsEmpty());

    ASSERT_EQ(
        ImportText(*reader, second({SelfWeightLine(1, "0 0 -2"), SelfWeightLine(1, "0 0 -2")})),
        S_OK);
    ASSERT_EQ(ChargesPoidsPropre(*reader).Size(), 1);
    EXPECT_EQ(ChargesPoidsPropre(*reader).At(0)->NumCas, 2);
    EXPECT_THAT(TypesOf(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader), ElementsAre(SelfWeightWarning(1)));
}

TEST(LoadsOfTwoImports, AreRefusedWhenTheSecondFileHasNoSuchCase)
{
    const auto reader = ImportedLoads({"1 G 1 G 0"}, {SelfWeightLine(1), SelfWeightLine(1)});
    ASSERT_EQ(ImportText(*reader, ModelText().Elements({ThermalLine(1)})), S_OK);
    EXPECT_EQ(ChargesPoidsPropre(*reader).Size(), 1);  // the first is taken away, the next stays
    EXPECT_EQ(ChargesThermiques(*reader).Size(), 0);
    EXPECT_THAT(Messages(*reader), ElementsAre(ThermalWarning(1), SelfWeightWarning(1)));
}

TEST(LoadMessages, OfAnAccessorAreThoseOfItsTime)
{
    const auto reader = ImportedLoads({}, {SelfWeightLine(1)});
    const auto accessor = GetAccessor(*reader, &ITAMURStructureReader::GetMessageAccessor);
    ASSERT_EQ(ImportText(*reader, ModelText().Elements({ThermalLine(2)})), S_OK);
    LONG count = 0;
    EXPECT_EQ(accessor->GetNbMessages(&count), S_OK);
    EXPECT_EQ(count, 1);
    BSTR first = nullptr, again = nullptr;
    EXPECT_EQ(accessor->GetMessageAtRank(0, &first), S_OK);
    EXPECT_EQ(accessor->GetMessageAtRank(0, &again), S_OK);
    EXPECT_EQ(first, again);  // lent, not copied
    EXPECT_THAT(Messages(*reader), ElementsAre(SelfWeightWarning(1), ThermalWarning(2)));
}

}  // namespace
}  // namespace tamur::test
