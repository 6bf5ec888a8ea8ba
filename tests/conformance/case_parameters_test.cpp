// When the lines of "#TAB_PARAM_CAS" are read at all, and which.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "conformance/load_model.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;

const std::vector<std::string> kOneOfEachKind = {
    "1 2 1 1.5 32767 0",
    "1 2 99 1.5 32767 0",  // names an unknown case: would be counted, and case 1 disabled
    "1 3 0 10 20 30",     "1 4 O N N", "1 9 5",
};

// Combinations, seismic cases, envelopes, skipped combinations, modal percentage along x.
std::vector<double> Read(ITAMURStructureReader& reader)
{
    return {static_cast<double>(Combinaisons(reader).Size()),
            static_cast<double>(ChargesSismiques(reader).Size()),
            static_cast<double>(Enveloppes(reader).Size()), static_cast<double>(SkippedOf(reader)),
            ModesOf(reader)->dPercentX};
}

TEST(CaseParameters, StaticCasesAloneNeedNone)
{
    const auto reader = Imported(LoadModel({"1 G 1 G 0", "2 Q 6 Q 0"}, kOneOfEachKind));
    EXPECT_THAT(Read(*reader), ElementsAre(0, 0, 0, 0, 100));
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(1));
}

TEST(CaseParameters, NoCasesNeedNone)
{
    const auto reader = Imported(ModelText().Section("#TAB_PARAM_CAS", kOneOfEachKind));
    EXPECT_THAT(Read(*reader), ElementsAre(0, 0, 0, 0, 100));
}

TEST(CaseParameters, EveryOtherTypeMakesAllKindsRead)
{
    for (const char* type : {"2", "3", "4", "9", "258"}) {
        SCOPED_TRACE(type);
        const auto reader =
            Imported(LoadModel({"1 G 1 G 0", std::string("8 X ") + type + " X 0"}, kOneOfEachKind));
        EXPECT_THAT(Read(*reader), ElementsAre(1, 1, 1, 1, 10));
        EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(8));
    }
}

TEST(CaseParameters, MayBeMissing)
{
    const auto reader = Imported(ModelText().Section("#Cas", {"8 X 2 X 0"}));
    EXPECT_THAT(Read(*reader), ElementsAre(0, 0, 0, 0, 100));
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(8));
}

TEST(CaseParameters, MayStandBeforeTheCases)
{
    const auto reader = Imported(ModelText()
                                     .Section("#TAB_PARAM_CAS", kOneOfEachKind)
                                     .Section("#Cas", {"1 G 1 G 0", "8 X 2 X 0"}));
    EXPECT_THAT(Read(*reader), ElementsAre(1, 1, 1, 1, 10));
}

TEST(CaseParameters, OtherKindsAreIgnored)
{
    const auto reader =
        Imported(LoadModel({"8 X 2 X 0"}, {"8 1 5", "8 5 5", "8 -9 5", "8 12 5", "8 265 5", "8 x 5",
                                           "x 9 5", "8", " ", "8 99999999999 5"}));
    EXPECT_THAT(Read(*reader), ElementsAre(0, 0, 0, 0, 100));
}

TEST(CaseParameters, KindIsNotCheckedAgainstTheCase)
{
    const auto reader = Imported(LoadModel(
        {"8 X 2 X 0"}, {"8 9 5", "8 4 O N N", "99 9 5", "99 4 O N N", "99 3 0 10 20 30"}));
    EXPECT_THAT(Read(*reader), ElementsAre(0, 2, 2, 0, 10));
}

TEST(CaseParameters, SectionEndsAtTheNextHeaderAndSkipsEmptyLines)
{
    const auto reader =
        Imported(LoadModel({"8 X 2 X 0"}, {"8 9 1", "", "8 9 2", "#Autre", "8 9 3"}));
    std::vector<int> quantities;
    for (const auto& envelope : Enveloppes(*reader)) quantities.push_back(envelope->iGrandeur);
    EXPECT_THAT(quantities, ElementsAre(1, 2));
}

TEST(CaseParameters, SecondImportExtendsTheTables)
{
    const auto reader = Imported(
        LoadModel({"1 G 1 G 0", "8 X 2 X 0"}, {"8 2 1 1.5 32767 0", "8 9 5", "8 4 N N N"}));
    ASSERT_EQ(ImportText(*reader, LoadModel({"1 G 1 G 0", "9 Y 2 Y 0"},
                                            {"9 2 1 2.5 32767 0", "9 9 5", "9 4 N N N"})),
              S_OK);
    EXPECT_THAT(Read(*reader), ElementsAre(2, 2, 2, 0, 100));
}

}  // namespace
}  // namespace tamur::test
