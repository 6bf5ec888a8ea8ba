// The bars accessor serves the bars as they were when it was made.
#include <gmock/gmock.h>

#include "models/one_of_each.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

TEST(BarsAccessor, StaysEmptyWhenMadeBeforeTheImport)
{
    const auto reader = NewReader();
    const auto bars = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, OneOfEachModel(7)), S_OK);
    EXPECT_EQ(bars.Size(), 0);
    EXPECT_EQ(Filaires(*reader).Size(), 1);
}

TEST(BarsAccessor, DoesNotSeeASecondImport)
{
    const auto reader = Imported(OneOfEachModel(7));
    const auto bars = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, OneOfEachModel(8)), S_OK);
    EXPECT_EQ(bars.Size(), 1);
    EXPECT_EQ(bars.At(0)->identifier, 7);
    TMRFilaire record = {};
    EXPECT_EQ(bars.TheAccessor().GetFilaireAtRank(1, &record), E_FAIL);
    EXPECT_EQ(Filaires(*reader).Size(), 2);
    EXPECT_EQ(Filaires(*reader).At(1)->identifier, 8);
}

TEST(BarsAccessor, OfEachTimeHasItsOwnCount)
{
    const auto reader = NewReader();
    const auto none = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, OneOfEachModel(7)), S_OK);
    const auto one = Filaires(*reader);
    const auto oneAgain = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, OneOfEachModel(8)), S_OK);
    const auto two = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, OneOfEachModel(9)), S_OK);
    EXPECT_EQ(none.Size(), 0);
    EXPECT_EQ(one.Size(), 1);
    EXPECT_EQ(oneAgain.Size(), 1);
    EXPECT_EQ(two.Size(), 2);
    EXPECT_EQ(two.At(1)->identifier, 8);
    EXPECT_EQ(Filaires(*reader).Size(), 3);
}

// Only the labels belong to the reader; these bars have none.
TEST(BarsAccessor, OutlivesTheReader)
{
    auto reader = ImportedBars({BarLine({.angle = 300, .startSection = 0, .endSection = 2}),
                                BarLine({.material = 2, .startSection = 2})});
    const auto bars = Filaires(*reader);
    ASSERT_EQ(ImportText(*reader, OneOfEachModel(8)), S_OK);
    reader = {};
    ASSERT_EQ(bars.Size(), 2);
    const auto first = bars.At(0);
    EXPECT_EQ(first->Angle, 30.0);
    EXPECT_EQ(Utf8(first->ElementType), "Poutre");
    EXPECT_EQ(Utf8(first->ErrorMessage), "#Section doesn't exist.#Verify H section!!!");
    EXPECT_EQ(Utf8(first->StartSection.SectionLib), "R1");
    EXPECT_EQ(Utf8(first->EndSection.SectionLib), "R2");
    EXPECT_EQ(first->EndSection.epureSec.pTabPoints[5], 6.0);
    EXPECT_EQ(Utf8(first->StartConnection.Titre), "Rotule");
    EXPECT_EQ(Utf8(bars.At(1)->FilaireMaterial.MaterialName), "S235");
}

TEST(BarsAccessor, GivesEveryCallItsOwnStringsAndArrays)
{
    const auto reader = ImportedBars({BarLine()});
    const auto bars = Filaires(*reader);
    const auto one = bars.At(0);
    const auto other = bars.At(0);
    EXPECT_NE(one->ElementType, other->ElementType);
    EXPECT_NE(one->ErrorMessage, other->ErrorMessage);
    EXPECT_NE(one->StartSection.SectionLib, other->StartSection.SectionLib);
    EXPECT_NE(one->StartSection.epureSec.pTabPoints, one->EndSection.epureSec.pTabPoints);
    EXPECT_NE(one->StartSection.epureSec.pTabPoints, other->StartSection.epureSec.pTabPoints);
    EXPECT_NE(one->FilaireMaterial.MaterialName, other->FilaireMaterial.MaterialName);
    EXPECT_NE(one->StartConnection.AttacheLib, one->EndConnection.AttacheLib);
}

}  // namespace
}  // namespace tamur::test
