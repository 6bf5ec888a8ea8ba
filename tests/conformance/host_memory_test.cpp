// Who owns what a record carries: the host gets copies, except for the strings of labels.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <span>

#include "models/every_table.h"
#include "conformance/load_model.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

// One string or array of a record.
struct Piece {
    std::string name;
    std::span<std::byte> bytes;
    const void* address;
    bool isLabelBlock;
};

// Finds the pieces of a record, those of embedded records too.
class PieceCollector {
 public:
    template <class Value>
    void Field(const char* name, Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            Add(name, value, SysStringByteLen(value), false);
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        }
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        Add(name, values, static_cast<std::size_t>(count) * sizeof(Value),
            std::is_same_v<Value, BSTR>);
    }

    [[nodiscard]] const std::vector<Piece>& Pieces() const { return pieces_; }

 private:
    void Add(const char* name, void* address, std::size_t size, bool isLabelBlock)
    {
        pieces_.push_back({name, {static_cast<std::byte*>(address), size}, address, isLabelBlock});
    }

    std::vector<Piece> pieces_;
};

template <class PublicRecord>
std::vector<Piece> PiecesOf(Record<PublicRecord>& record)
{
    PieceCollector collector;
    VisitFields(record.Get(), collector);
    return collector.Pieces();
}

bool SameBytes(const Piece& one, const Piece& other)
{
    return one.bytes.size() == other.bytes.size() &&
           (one.bytes.empty() || std::memcmp(one.address, other.address, one.bytes.size()) == 0);
}

// Calls check(pieces, pieces) for two copies of every record of every table.
template <class Visitor>
void ForTwoCopiesOfEveryRecord(Visitor&& check)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        const auto records = table(*reader);
        for (LONG rank = 0; rank < records.Size(); ++rank) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(rank));
            auto one = records.At(rank);
            auto other = records.At(rank);
            check(PiecesOf(one), PiecesOf(other));
        }
    });
}

// Label blocks count as equal when the same strings are lent through both.
TEST(HostMemory, TwoCopiesAreEqualAndShareNoBlock)
{
    int count = 0;
    ForTwoCopiesOfEveryRecord([&](const auto& one, const auto& other) {
        ASSERT_EQ(one.size(), other.size());
        for (std::size_t i = 0; i < one.size(); ++i) {
            EXPECT_TRUE(SameBytes(one[i], other[i])) << one[i].name;
            if (one[i].address == nullptr) {
                EXPECT_EQ(other[i].address, nullptr) << one[i].name;
            } else {
                EXPECT_NE(one[i].address, other[i].address) << one[i].name;
                ++count;
            }
        }
    });
    EXPECT_GT(count, 50);  // otherwise the walk over the fields found nothing
}

TEST(HostMemory, WritingOverACopyChangesNothingInTheReader)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        const auto records = table(*reader);
        auto kept = records.At(0);
        auto spoilt = records.At(0);
        for (const Piece& piece : PiecesOf(spoilt)) {
            if (piece.address == nullptr) continue;
            std::memset(piece.bytes.data(), piece.isLabelBlock ? 0 : 0x5A, piece.bytes.size());
        }
        auto again = records.At(0);
        const auto expected = PiecesOf(kept);
        const auto pieces = PiecesOf(again);
        ASSERT_EQ(pieces.size(), expected.size());
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            EXPECT_TRUE(SameBytes(pieces[i], expected[i])) << pieces[i].name;
        }
    });
}

TEST(HostMemory, ModalValuesAreCopies)
{
    const auto reader = Imported(EveryTable());
    auto one = ModesOf(*reader);
    auto other = ModesOf(*reader);
    ASSERT_EQ(one->iNrOfModes, 2);
    EXPECT_NE(one->pDampingValues, other->pDampingValues);
    one->pDampingValues[0] = 9;
    EXPECT_EQ(ModesOf(*reader)->pDampingValues[0], 0.05);
}

// ------------------------------------------------------------------ labels

template <class Range>
void ExpectLabelsLent(const Range& records)
{
    const auto one = records.At(0);
    const auto other = records.At(0);
    ASSERT_GE(one->ElemLabels.nbLabels, 1);
    EXPECT_NE(one->ElemLabels.tabLabels, other->ElemLabels.tabLabels);
    for (int i = 0; i < one->ElemLabels.nbLabels; ++i) {
        EXPECT_EQ(one->ElemLabels.tabLabels[i], other->ElemLabels.tabLabels[i]);
    }
}

TEST(HostMemory, StringsOfLabelsAreLentInBlocksOfTheHost)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        using PublicRecord = typename TableTraits<decltype(table(*reader))>::PublicRecord;
        SCOPED_TRACE(name);
        if constexpr (requires(PublicRecord record) { record.ElemLabels; }) {
            ExpectLabelsLent(table(*reader));
        }
    });
}

TEST(HostMemory, LentStringsStayWhereTheyAreWhileAnImportAddsMore)
{
    const auto reader = Imported(EveryTable());
    const auto before = Nodes(*reader).At(0);
    ASSERT_EQ(ImportText(*reader, EveryTable()), S_OK);
    EXPECT_THAT(TextsOf(before->ElemLabels), ::testing::ElementsAre("N7", "N8"));
    EXPECT_EQ(Nodes(*reader).At(0)->ElemLabels.tabLabels[0], before->ElemLabels.tabLabels[0]);
}

TEST(HostMemory, NoLabelsAreANullBlock)
{
    const auto reader = ImportedElements({ElementLine(1).Points({"0 0 0"})});
    const auto node = Nodes(*reader).At(0);
    EXPECT_EQ(node->ElemLabels.nbLabels, 0);
    EXPECT_EQ(node->ElemLabels.tabLabels, nullptr);
}

TEST(HostMemory, NodesInBulkHaveBlocksOfTheirOwn)
{
    const auto reader = ImportedElements({ElementLine(1, 5).Points({"0 1 2"}).Labels({"A"}),
                                          ElementLine(1, 3).Points({"3 4 5"}).Columns("9")});
    const auto nodes = Nodes(*reader);
    TMRNode bulk[2];
    std::memset(static_cast<void*>(bulk), 0xA5, sizeof bulk);
    ASSERT_EQ(nodes.TheAccessor().GetNodes(bulk), S_OK);
    EXPECT_EQ(bulk[0].identifier, 5);
    EXPECT_EQ(bulk[1].identifier, 3);
    EXPECT_EQ(bulk[1].blocage, 9);
    EXPECT_THAT(Coordinates(bulk[1].Geometrie), ::testing::ElementsAre(3, 4, 5));
    const auto single = nodes.At(0);
    ASSERT_EQ(bulk[0].ElemLabels.nbLabels, 1);
    EXPECT_NE(bulk[0].ElemLabels.tabLabels, single->ElemLabels.tabLabels);
    EXPECT_EQ(bulk[0].ElemLabels.tabLabels[0], single->ElemLabels.tabLabels[0]);
    EXPECT_EQ(bulk[1].ElemLabels.nbLabels, 0);
    EXPECT_EQ(bulk[1].ElemLabels.tabLabels, nullptr);
    CoTaskMemFree(bulk[0].ElemLabels.tabLabels);
}

// ------------------------------------------------------------------ nothing in it

TEST(HostMemory, EmptyArraysAreBlocksAllTheSame)
{
    const auto reader =
        Imported(LoadModel({"7 S 4 S 0"}, {"7 4 N N N", "7 9 1"})
                     .Section("#Geometries", {"P1 1", "P2 1 2 3 4 5 6 7 8 9 10 11 0 S"})
                     .Elements({ElementLine(3), ElementLine(7), ElementLine(11), ElementLine(17),
                                ElementLine(20)}));
    const auto expectEmptyBlock = [](const char* name, int count, const void* block) {
        EXPECT_EQ(count, 0) << name;
        EXPECT_NE(block, nullptr) << name;
    };
    for (const auto& section : Sections(*reader)) {
        expectEmptyBlock("outline", section->epureSec.nbPoints, section->epureSec.pTabPoints);
    }
    const auto expectEmptyPolygon = [&](const char* name, const TMR3DPlanarElement& polygon) {
        expectEmptyBlock(name, polygon.nbPoints, polygon.tabPoints);
    };
    expectEmptyPolygon("surface", Surfaciques(*reader).At(0)->Surface);
    expectEmptyPolygon("surface load", ChargesSurfaciques(*reader).At(0)->Geometrie);
    expectEmptyPolygon("surface support", AppuisSurfaciques(*reader).At(0)->Geometrie);
    expectEmptyPolygon("opening", Ouvertures(*reader).At(0)->Surface);
    const auto wall = Parois(*reader).At(0);
    expectEmptyPolygon("wall", wall->Surface);
    expectEmptyBlock("wall", wall->portCoef.nbPoints, wall->portCoef.tabCoef);
    const auto seismic = ChargesSismiques(*reader).At(0);
    expectEmptyBlock("periods", seismic->iPointsSpectrum, seismic->pPeriodsSpectrum);
    expectEmptyBlock("accelerations", seismic->iPointsSpectrum, seismic->pAccelerationSpectrum);
    const auto envelope = Enveloppes(*reader).At(0);
    expectEmptyBlock("envelope", envelope->iNbCases, envelope->pCases);
    const auto modes = ModesOf(*reader);
    expectEmptyBlock("dampings", modes->iNrOfModes, modes->pDampingValues);
}

TEST(HostMemory, AbsentTextIsNullAndEmptyTextIsNot)
{
    const auto isEmptyText = [](BSTR text) { return text != nullptr && SysStringLen(text) == 0; };
    // No sections: bars get the default one, which calls for no remark.
    const auto reader = Imported(
        ModelText()
            .Section("#Attaches", {"E0 0"})
            .Elements({ElementLine(2).Points({"0 0 0", "1 0 0"}).Columns("1 9 0 0 0 1 1 1"),
                       ElementLine(9).Points({"0 0 0"})}));
    const auto bar = Filaires(*reader).At(0);
    EXPECT_EQ(bar->ErrorMessage, nullptr);
    EXPECT_TRUE(isEmptyText(bar->ElementType));
    EXPECT_TRUE(isEmptyText(Masses(*reader).At(0)->ElementType));
    const auto release = Attaches(*reader).At(0);
    EXPECT_TRUE(isEmptyText(release->Titre));
    EXPECT_TRUE(isEmptyText(release->Geom));
    EXPECT_TRUE(isEmptyText(release->Def));
}

// ------------------------------------------------------------------ embedded records

TEST(HostMemory, BarsCarryWholeCopiesOfWhatTheyReferTo)
{
    const auto reader = Imported(EveryTable());
    const auto bar = Filaires(*reader).At(0);
    const auto& start = bar->StartSection;
    EXPECT_EQ(Utf8(start.SectionLib), "S1");
    EXPECT_EQ(start.V2z, 11);
    EXPECT_THAT(Values(start.epureSec.pTabPoints, 6), ::testing::ElementsAre(0, 0, 5, 1, 0, 6));
    const auto& end = bar->EndSection;
    EXPECT_EQ(Utf8(end.SectionLib), "C1");
    EXPECT_THAT(Values(end.epureSec.pTabPoints, 8), ::testing::ElementsAre(0, 0, 1, 0, 1, 1, 0, 1));
    EXPECT_EQ(end.epureSec.dfRadius, 0.5);
    EXPECT_EQ(Utf8(bar->StartConnection.AttacheLib), "ART1");
    EXPECT_EQ(bar->StartConnection.Rotules, 7);
    EXPECT_EQ(Utf8(bar->EndConnection.Def), "D");
    EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "C25");
    EXPECT_EQ(bar->FilaireMaterial.amortissement, 0.05);

    const auto section = Sections(*reader).At(0);
    EXPECT_NE(section->SectionLib, start.SectionLib);
    EXPECT_NE(section->epureSec.pTabPoints, start.epureSec.pTabPoints);
    EXPECT_NE(Materials(*reader).At(0)->MaterialName, bar->FilaireMaterial.MaterialName);
    EXPECT_EQ(Utf8(Surfaciques(*reader).At(0)->SurfaciqueMaterial.MaterialName), "C25");
}

}  // namespace
}  // namespace tamur::test
