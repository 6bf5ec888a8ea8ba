// The accessors of the element tables: which ranks they take, which changes of the tables they
// see, and what they lend.
#include <gmock/gmock.h>

#include <array>
#include <climits>
#include <cstring>
#include <typeinfo>

#include "models/one_of_each.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;

// Ranks outside the table fail and write nothing.
template <class PublicRecord>
void ExpectRanksChecked(const Range<PublicRecord>& range)
{
    std::array<unsigned char, sizeof(PublicRecord)> untouched;
    untouched.fill(0xA5);
    for (const LONG rank :
         {LONG{-1}, LONG{INT_MIN}, range.Size(), range.Size() + 1, LONG{INT_MAX}}) {
        PublicRecord record;
        std::memcpy(&record, untouched.data(), sizeof record);
        EXPECT_EQ((range.TheAccessor().*range.kGetAtRank)(rank, &record), E_FAIL) << rank;
        EXPECT_EQ(std::memcmp(&record, untouched.data(), sizeof record), 0) << rank;
    }
}

TEST(ElementAccessors, ModelOfTheseTestsHasOneOfEachElement)
{
    const auto reader = Imported(OneOfEachModel(7));
    int tables = 0;
    ForEachElementTable(*reader, [&](const auto& range) {
        EXPECT_EQ(range.Size(), 1) << range.Name();
        ++tables;
    });
    constexpr int kKindsOfElements = 19;
    EXPECT_EQ(tables, kKindsOfElements);
}

TEST(ElementAccessors, RanksOutsideATableFailAndWriteNothing)
{
    const auto reader = Imported(OneOfEachModel(7));
    ForEachCheckedTable(*reader, [](const auto& range) {
        SCOPED_TRACE(range.Name());
        EXPECT_EQ(range.Size(), 1);
        ExpectRanksChecked(range);
    });
}

TEST(ElementAccessors, RanksOfEmptyTablesFail)
{
    const auto reader = NewReader();
    ForEachCheckedTable(*reader, [](const auto& range) {
        SCOPED_TRACE(range.Name());
        EXPECT_EQ(range.Size(), 0);
        ExpectRanksChecked(range);
    });
    EXPECT_EQ(CountElements(*reader), 0);
}

LONG IdentifierOf(const TMRLineInterieur& line)
{
    return line.lIdentifier;
}
template <class Element>
LONG IdentifierOf(const Element& element)
{
    return element.identifier;
}

template <class Elements>
std::vector<LONG> IdentifiersOf(const Elements& elements)
{
    std::vector<LONG> identifiers;
    for (const auto& element : elements) identifiers.push_back(IdentifierOf(*element));
    return identifiers;
}

// Imports a second model; `check` then sees the ranges that were made before.
template <class Check, class... Ranges>
void AcrossASecondImport(ITAMURStructureReader& reader, Check check, const Ranges&... ranges)
{
    ASSERT_EQ(ImportText(reader, OneOfEachModel(8)), S_OK);
    (check(ranges), ...);
}

TEST(ElementAccessors, MostSeeASecondImport)
{
    const auto reader = Imported(OneOfEachModel(7));
    ITAMURStructureReader& r = *reader;
    const auto seesBoth = [](const auto& range) {
        EXPECT_THAT(IdentifiersOf(range), ElementsAre(7, 8)) << range.Name();
    };
    AcrossASecondImport(r, seesBoth, Nodes(r), AppuisPonctuels(r), AppuisLineaires(r),
                        AppuisSurfaciques(r), Masses(r), Cables(r), Lines(r), LinesInterieur(r),
                        Deplacements(r), SurfacicSections(r), ChargesPonctuelles(r),
                        ChargesLineaires(r), ChargesSurfaciques(r), ChargesPoidsPropre(r),
                        ChargesThermiques(r));
}

// Surfaces, openings and walls keep the count of their creation, yet read the table as it is.
TEST(ElementAccessors, FrozenCountsDoNotLimitTheRanks)
{
    const auto reader = Imported(OneOfEachModel(7));
    ITAMURStructureReader& r = *reader;
    const auto countsOneAndReadsTwo = [](const auto& range) {
        EXPECT_EQ(range.Size(), 1) << range.Name();
        EXPECT_EQ(range.At(0)->identifier, 7) << range.Name();
        EXPECT_EQ(range.At(1)->identifier, 8) << range.Name();
    };
    AcrossASecondImport(r, countsOneAndReadsTwo, Surfaciques(r), Ouvertures(r), Parois(r));
    EXPECT_EQ(Surfaciques(r).Size(), 2);
    EXPECT_EQ(Ouvertures(r).Size(), 2);
    EXPECT_EQ(Parois(r).Size(), 2);
}

TEST(ElementAccessors, EveryCallMakesAnAccessor)
{
    const auto reader = Imported(OneOfEachModel(7));
    const auto first = GetAccessor(*reader, &ITAMURStructureReader::GetNodeAccessor);
    const auto second = GetAccessor(*reader, &ITAMURStructureReader::GetNodeAccessor);
    EXPECT_NE(first.Get(), second.Get());
}

TEST(ElementAccessors, SurfacesOpeningsAndWallsTellOfErrorInformation)
{
    const auto reader = Imported(OneOfEachModel(7));
    const auto expectErrorInfo = [](IUnknown& accessor, REFIID own) {
        ComPtr<ISupportErrorInfo> info;
        ASSERT_EQ(accessor.QueryInterface(IID_ISupportErrorInfo, info.PutVoid()), S_OK);
        EXPECT_EQ(info->InterfaceSupportsErrorInfo(own), S_OK);
        EXPECT_EQ(info->InterfaceSupportsErrorInfo(IID_ITMRNodeAccessor), S_FALSE);
        EXPECT_EQ(info->InterfaceSupportsErrorInfo(IID_IGenericAccessor), S_FALSE);
    };
    expectErrorInfo(Surfaciques(*reader).TheAccessor(), IID_ITMRSurfaciqueAccessor);
    expectErrorInfo(Ouvertures(*reader).TheAccessor(), IID_ITMROuvertureAccessor);
    expectErrorInfo(Parois(*reader).TheAccessor(), IID_ITMRParoiAccessor);
}

// ------------------------------------------------------------------- nodes in bulk

TEST(NodesInBulk, AreAllNodesInTheOrderOfTheTable)
{
    constexpr std::size_t kNodes = 100;
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < kNodes; ++i) {
        const std::string number = std::to_string(i);
        ElementLine line(1, static_cast<LONG>(1000 - i));
        line.Points({number + " 2 3"}).Columns(number);
        if (i % 2 != 0) line.Labels({"N" + number, "M"});
        lines.push_back(line);
    }
    const auto reader = ImportedElements(lines);
    const auto nodes = Nodes(*reader);
    std::vector<TMRNode> all(kNodes + 1);
    all.back().identifier = -5;
    ASSERT_EQ(nodes.TheAccessor().GetNodes(all.data()), S_OK);
    for (std::size_t i = 0; i < kNodes; ++i) {
        EXPECT_EQ(all[i].identifier, static_cast<LONG>(1000 - i));
        EXPECT_THAT(Coordinates(all[i].Geometrie), ElementsAre(static_cast<double>(i), 2, 3));
        EXPECT_EQ(all[i].blocage, i);
        EXPECT_EQ(all[i].ElemLabels.nbLabels, i % 2 != 0 ? 2 : 0);
        if (i % 2 != 0) {
            const auto one = nodes.At(static_cast<LONG>(i));
            EXPECT_EQ(all[i].ElemLabels.tabLabels[0], one->ElemLabels.tabLabels[0]);
            EXPECT_NE(all[i].ElemLabels.tabLabels, one->ElemLabels.tabLabels);
        } else {
            EXPECT_EQ(all[i].ElemLabels.tabLabels, nullptr);
        }
        CoTaskMemFree(all[i].ElemLabels.tabLabels);
    }
    EXPECT_EQ(all.back().identifier, -5);
}

TEST(NodesInBulk, OfAnEmptyTableWriteNothing)
{
    const auto reader = ImportedElements({});
    TMRNode node = {};
    node.identifier = -5;
    EXPECT_EQ(Nodes(*reader).TheAccessor().GetNodes(&node), S_OK);
    EXPECT_EQ(node.identifier, -5);
}

// ------------------------------------------------------------------- lent labels

// Both records have the same strings in blocks of their own.
template <class Element>
void ExpectSharedLabels(const Record<Element>& one, const Record<Element>& other)
{
    ASSERT_EQ(one->ElemLabels.nbLabels, 1);
    ASSERT_EQ(other->ElemLabels.nbLabels, 1);
    EXPECT_NE(one->ElemLabels.tabLabels, other->ElemLabels.tabLabels);
    EXPECT_EQ(one->ElemLabels.tabLabels[0], other->ElemLabels.tabLabels[0]);
    EXPECT_EQ(Utf8(one->ElemLabels.tabLabels[0]), "L");
}

TEST(LentLabels, AreTheSameStringsForEveryAccessor)
{
    const auto reader = Imported(OneOfEachModel(7));
    ExpectSharedLabels(Nodes(*reader).At(0), Nodes(*reader).At(0));
    ExpectSharedLabels(Filaires(*reader).At(0), Filaires(*reader).At(0));
    ExpectSharedLabels(Surfaciques(*reader).At(0), Surfaciques(*reader).At(0));
    ExpectSharedLabels(Ouvertures(*reader).At(0), Ouvertures(*reader).At(0));
    ExpectSharedLabels(Parois(*reader).At(0), Parois(*reader).At(0));
    ExpectSharedLabels(AppuisPonctuels(*reader).At(0), AppuisPonctuels(*reader).At(0));
    ExpectSharedLabels(AppuisLineaires(*reader).At(0), AppuisLineaires(*reader).At(0));
    ExpectSharedLabels(AppuisSurfaciques(*reader).At(0), AppuisSurfaciques(*reader).At(0));
    ExpectSharedLabels(Masses(*reader).At(0), Masses(*reader).At(0));
    ExpectSharedLabels(Lines(*reader).At(0), Lines(*reader).At(0));
    ExpectSharedLabels(LinesInterieur(*reader).At(0), LinesInterieur(*reader).At(0));
}

TEST(LentLabels, StayWhereTheyAreWhileTheTablesGrow)
{
    const auto reader = Imported(OneOfEachModel(7));
    const auto before = Nodes(*reader).At(0);
    const auto barBefore = Filaires(*reader).At(0);
    std::vector<std::string> lines;
    for (int i = 0; i < 20000; ++i) {
        lines.push_back(ElementLine(1).Points({"0 0 0"}).Labels({"MORE"}));
    }
    ASSERT_EQ(ImportText(*reader, ModelText().Elements(lines)), S_OK);
    ExpectSharedLabels(before, Nodes(*reader).At(0));
    ExpectSharedLabels(barBefore, Filaires(*reader).At(0));
}

}  // namespace
}  // namespace tamur::test
