// A static case carries self-weight or thermal loads, never both, and all of them alike; a case
// that does otherwise is disabled. Every rule holds for both sorts of loads, so every test runs
// for both.
#include <gmock/gmock.h>

#include "models/load_case_models.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;
using Identifiers = std::vector<LONG>;

template <class Loads>
Identifiers IdentifiersOf(const Loads& loads)
{
    Identifiers identifiers;
    for (const auto& load : loads) identifiers.push_back(load->identifier);
    return identifiers;
}

struct SelfWeight {
    static constexpr int kCaseType = 12;
    static std::string Line(int caseNumber, const std::string& values = "0 0 -1",
                            LONG identifier = 7)
    {
        return SelfWeightLine(caseNumber, values, identifier);
    }
    static std::string Warning(int caseNumber) { return SelfWeightWarning(caseNumber); }
    static Identifiers Kept(ITAMURStructureReader& reader)
    {
        return IdentifiersOf(ChargesPoidsPropre(reader));
    }
};

struct Thermal {
    static constexpr int kCaseType = 13;
    static std::string Line(int caseNumber, const std::string& values = "20 0 0",
                            LONG identifier = 7)
    {
        return ThermalLine(caseNumber, values, identifier);
    }
    static std::string Warning(int caseNumber) { return ThermalWarning(caseNumber); }
    static Identifiers Kept(ITAMURStructureReader& reader)
    {
        return IdentifiersOf(ChargesThermiques(reader));
    }
};

template <class ThisLoad, class OtherLoad>
struct Sorts {
    using This = ThisLoad;
    using Other = OtherLoad;
};

template <class TwoSorts>
class GroupLoads : public testing::Test {
 public:
    using ThisSort = typename TwoSorts::This;
    using OtherSort = typename TwoSorts::Other;
};

using BothWays = testing::Types<Sorts<SelfWeight, Thermal>, Sorts<Thermal, SelfWeight>>;
TYPED_TEST_SUITE(GroupLoads, BothWays, );

// Number and type of the cases that are not disabled.
std::vector<std::pair<int, int>> CasesOf(ITAMURStructureReader& reader)
{
    std::vector<std::pair<int, int>> cases;
    for (const auto& loadCase : Cas(reader)) cases.emplace_back(loadCase->Num, loadCase->Type);
    return cases;
}

const Strings kTwoStaticCases = {"1 G 1 G 0", "2 Q 1 Q 0"};

TYPED_TEST(GroupLoads, FirstOneMarksItsStaticCase)
{
    using This = typename TestFixture::ThisSort;
    const auto reader = ImportedLoads(kTwoStaticCases, {This::Line(2, "1 2 3", 10)});
    EXPECT_THAT(CasesOf(*reader), ElementsAre(std::pair(1, 1), std::pair(2, This::kCaseType)));
    EXPECT_THAT(This::Kept(*reader), ElementsAre(10));
    EXPECT_THAT(Messages(*reader), IsEmpty());
}

TYPED_TEST(GroupLoads, EqualOnesOfACaseAreKept)
{
    using This = typename TestFixture::ThisSort;
    const auto reader =
        ImportedLoads(kTwoStaticCases, {This::Line(1, "0 0 -1", 10), This::Line(1, "0 0 -1", 11),
                                        This::Line(1, "-0.0 0.0 -1.0", 12)});
    EXPECT_THAT(CasesOf(*reader), ElementsAre(std::pair(1, This::kCaseType), std::pair(2, 1)));
    EXPECT_THAT(This::Kept(*reader), ElementsAre(10, 11, 12));
    EXPECT_THAT(Messages(*reader), IsEmpty());
}

TYPED_TEST(GroupLoads, GroupsDoNotTakePartInTheComparison)
{
    using This = typename TestFixture::ThisSort;
    const int kind = This::kCaseType == 12 ? 8 : 13;
    const auto reader = ImportedLoads(
        kTwoStaticCases,
        {This::Line(1, "0 0 -1", 10), ElementLine(kind, 11).Columns("1 0 0 -1 3 99")});
    EXPECT_THAT(This::Kept(*reader), ElementsAre(10, 11));
}

TYPED_TEST(GroupLoads, AnyDifferentValueRefusesTheCase)
{
    using This = typename TestFixture::ThisSort;
    for (const std::string values :
         {"0 0 -1.1", "0 1e-300 -1", "5 0 -1", "0 0 -1.0000000000000002", "0 0"}) {
        const auto reader =
            ImportedLoads(kTwoStaticCases, {This::Line(1, "0 0 -1", 10), This::Line(2, "7 7 7", 20),
                                            This::Line(1, "0 0 -1", 11), This::Line(1, values, 12),
                                            This::Line(2, "7 7 7", 21)});
        EXPECT_THAT(CasesOf(*reader), ElementsAre(std::pair(2, This::kCaseType))) << values;
        EXPECT_THAT(This::Kept(*reader), ElementsAre(20, 21)) << values;
        EXPECT_THAT(Messages(*reader), ElementsAre(This::Warning(1))) << values;
    }
}

TYPED_TEST(GroupLoads, OfADisabledCaseAreRefusedEachWithAWarning)
{
    using This = typename TestFixture::ThisSort;
    const auto reader =
        ImportedLoads(kTwoStaticCases, {This::Line(1, "0 0 -1", 10), This::Line(1, "0 0 -2", 11),
                                        This::Line(1, "0 0 -1", 12), This::Line(2, "0 0 -1", 20),
                                        This::Line(1, "0 0 -1", 13)});
    EXPECT_THAT(This::Kept(*reader), ElementsAre(20));
    EXPECT_THAT(Messages(*reader),
                ElementsAre(This::Warning(1), This::Warning(1), This::Warning(1)));
}

TYPED_TEST(GroupLoads, OfAnUnknownCaseAreRefusedAndChangeNoCase)
{
    using This = typename TestFixture::ThisSort;
    for (const Strings& cases : {kTwoStaticCases, Strings()}) {
        const auto reader = ImportedLoads(cases, {This::Line(99), This::Line(-1)});
        EXPECT_EQ(CasesOf(*reader).size(), cases.size());
        EXPECT_THAT(This::Kept(*reader), IsEmpty());
        EXPECT_THAT(Messages(*reader), ElementsAre(This::Warning(99), This::Warning(-1)));
    }
}

TYPED_TEST(GroupLoads, OfCasesThatAreNotStaticDisableThem)
{
    using This = typename TestFixture::ThisSort;
    const auto reader =
        ImportedLoads({"2 C 2 C 0", "3 M 3 M 0", "4 S 4 S 0", "9 E 9 E 0", "10 G 1 G 0"},
                      {This::Line(9), This::Line(4), This::Line(3), This::Line(2)});
    EXPECT_THAT(CasesOf(*reader), ElementsAre(std::pair(10, 1)));
    EXPECT_THAT(This::Kept(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader), ElementsAre(This::Warning(9), This::Warning(4), This::Warning(3),
                                               This::Warning(2)));
}

TYPED_TEST(GroupLoads, ShortLinesBelongToCaseZero)
{
    using This = typename TestFixture::ThisSort;
    const int kind = This::kCaseType == 12 ? 8 : 13;
    const auto reader = ImportedLoads(kTwoStaticCases, {ElementLine(kind)});
    EXPECT_THAT(This::Kept(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader), ElementsAre(This::Warning(0)));
}

// ------------------------------------------------------------------- both sorts in one case

TYPED_TEST(GroupLoads, BothSortsInOneCaseRefuseBoth)
{
    using This = typename TestFixture::ThisSort;
    using Other = typename TestFixture::OtherSort;
    const auto reader = ImportedLoads(
        kTwoStaticCases,
        {This::Line(1, "0 0 -1", 10), This::Line(2, "0 0 -1", 20), Other::Line(1, "20 0 0", 30)});
    EXPECT_THAT(CasesOf(*reader), ElementsAre(std::pair(2, This::kCaseType)));
    EXPECT_THAT(This::Kept(*reader), ElementsAre(20));
    EXPECT_THAT(Other::Kept(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader), ElementsAre(Other::Warning(1), This::Warning(1)));
}

TYPED_TEST(GroupLoads, OnlyTheFirstOfTheOtherSortIsRemoved)
{
    using This = typename TestFixture::ThisSort;
    using Other = typename TestFixture::OtherSort;
    const auto reader =
        ImportedLoads(kTwoStaticCases, {This::Line(2, "0 0 -1", 20), This::Line(1, "0 0 -1", 10),
                                        This::Line(1, "0 0 -1", 11), This::Line(1, "0 0 -1", 12),
                                        Other::Line(1, "20 0 0", 30)});
    EXPECT_THAT(CasesOf(*reader), ElementsAre(std::pair(2, This::kCaseType)));
    EXPECT_THAT(This::Kept(*reader), ElementsAre(20, 11, 12));
    EXPECT_THAT(Other::Kept(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader), ElementsAre(Other::Warning(1), This::Warning(1)));
}

TYPED_TEST(GroupLoads, EveryFurtherRefusalRemovesOneMoreOfTheOtherSort)
{
    using This = typename TestFixture::ThisSort;
    using Other = typename TestFixture::OtherSort;
    const auto reader =
        ImportedLoads(kTwoStaticCases, {This::Line(1, "0 0 -1", 10), This::Line(1, "0 0 -1", 11),
                                        Other::Line(1), Other::Line(1), Other::Line(1)});
    EXPECT_THAT(This::Kept(*reader), IsEmpty());
    EXPECT_THAT(Other::Kept(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader),
                ElementsAre(Other::Warning(1), This::Warning(1), Other::Warning(1),
                            This::Warning(1), Other::Warning(1)));
}

TYPED_TEST(GroupLoads, RefusalRemovesAllThatStayedOfItsOwnSort)
{
    using This = typename TestFixture::ThisSort;
    using Other = typename TestFixture::OtherSort;
    const auto reader =
        ImportedLoads(kTwoStaticCases,
                      {This::Line(1, "0 0 -1", 10), This::Line(1, "0 0 -1", 11),
                       This::Line(1, "0 0 -1", 12), Other::Line(1), This::Line(1, "0 0 -1", 13)});
    EXPECT_THAT(This::Kept(*reader), IsEmpty());
    EXPECT_THAT(Messages(*reader),
                ElementsAre(Other::Warning(1), This::Warning(1), This::Warning(1)));
}

}  // namespace
}  // namespace tamur::test
