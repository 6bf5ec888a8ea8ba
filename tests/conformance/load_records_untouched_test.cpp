// Self-weight and thermal loads are written into the caller's record but for its group number and
// element type, which stay the caller's.
#include <gtest/gtest.h>

#include "models/load_case_models.h"

namespace tamur::test {
namespace {

ComPtr<ITAMURStructureReader> ReaderWithBoth()
{
    return ImportedLoads({"1 G 1 G 0", "2 T 1 T 0"},
                         {SelfWeightLine(1, "0.5 1.5 -1", 41), ThermalLine(2, "20 2.5 3.5", 42)});
}

// Reads rank 0 into a record that already holds values; gives the record back.
template <class PublicRecord>
Record<PublicRecord> ReadOver(const Range<PublicRecord>& range, BSTR elementType)
{
    Record<PublicRecord> record;
    PublicRecord& fields = record.Get();
    fields.identifier = fields.NumCas = fields.Repere = fields.ElemGrp = fields.NumGrp = -99;
    fields.GroupNumber = 77;
    fields.ElementType = elementType;
    EXPECT_EQ((range.TheAccessor().*range.kGetAtRank)(0, &fields), S_OK);
    return record;
}

TEST(GroupLoadRecords, SelfWeightKeepsTheCallersGroupNumberAndType)
{
    const auto reader = ReaderWithBoth();
    const BSTR mine = SysAllocString(OLESTR("mine"));
    const auto load = ReadOver(ChargesPoidsPropre(*reader), mine);
    EXPECT_EQ(load->GroupNumber, 77);
    EXPECT_EQ(load->ElementType, mine);
    EXPECT_EQ(Utf8(load->ElementType), "mine");
    EXPECT_EQ(load->identifier, 41);
    EXPECT_EQ(load->NumCas, 1);
    EXPECT_EQ(load->Repere, 0);
    EXPECT_EQ(load->dX, 0.5);
    EXPECT_EQ(load->dY, 1.5);
    EXPECT_EQ(load->dZ, -1.0);
    EXPECT_EQ(load->ElemGrp, 2);
    EXPECT_EQ(load->NumGrp, 1);
}

TEST(GroupLoadRecords, ThermalKeepsTheCallersGroupNumberAndType)
{
    const auto reader = ReaderWithBoth();
    const BSTR mine = SysAllocString(OLESTR("mine"));
    const auto load = ReadOver(ChargesThermiques(*reader), mine);
    EXPECT_EQ(load->GroupNumber, 77);
    EXPECT_EQ(load->ElementType, mine);
    EXPECT_EQ(Utf8(load->ElementType), "mine");
    EXPECT_EQ(load->identifier, 42);
    EXPECT_EQ(load->NumCas, 2);
    EXPECT_EQ(load->Repere, 0);
    EXPECT_EQ(load->DeltaT, 20.0);
    EXPECT_EQ(load->Gy, 2.5);
    EXPECT_EQ(load->Gz, 3.5);
    EXPECT_EQ(load->ElemGrp, 2);
    EXPECT_EQ(load->NumGrp, 1);
}

TEST(GroupLoadRecords, NullTypeStaysNull)
{
    const auto reader = ReaderWithBoth();
    EXPECT_EQ(ReadOver(ChargesPoidsPropre(*reader), nullptr)->ElementType, nullptr);
    EXPECT_EQ(ReadOver(ChargesThermiques(*reader), nullptr)->ElementType, nullptr);
}

// Such a record is not freed by the call either: the string would be gone.
TEST(GroupLoadRecords, MayBeReadOverAgain)
{
    const auto reader = ReaderWithBoth();
    const auto loads = ChargesPoidsPropre(*reader);
    auto load = ReadOver(loads, SysAllocString(OLESTR("mine")));
    EXPECT_EQ(loads.TheAccessor().GetChargePoidsPropreAtRank(0, &load.Get()), S_OK);
    EXPECT_EQ(loads.TheAccessor().GetChargePoidsPropreAtRank(1, &load.Get()), E_FAIL);
    EXPECT_EQ(Utf8(load->ElementType), "mine");
    EXPECT_EQ(load->GroupNumber, 77);
    EXPECT_EQ(load->identifier, 41);
}

// The other records are overwritten without a look at what they held.
TEST(ElementRecords, OverwriteWhatTheyFind)
{
    const auto reader = ImportedElements(
        {ElementLine(9).Points({"0 0 0"}), ElementLine(9).Points({"0 0 0"}).Labels({"A"})});
    const auto masses = Masses(*reader);
    Record<TMRMasse> mass = masses.At(1);
    BSTR* const held = mass->ElemLabels.tabLabels;
    const BSTR heldType = mass->ElementType;
    EXPECT_EQ(masses.TheAccessor().GetMasseAtRank(0, &mass.Get()), S_OK);
    EXPECT_EQ(mass->ElemLabels.nbLabels, 0);
    EXPECT_EQ(mass->ElemLabels.tabLabels, nullptr);
    CoTaskMemFree(held);  // still the caller's to free
    SysFreeString(heldType);
}

}  // namespace
}  // namespace tamur::test
