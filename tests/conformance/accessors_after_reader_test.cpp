// What accessors with records of their own still serve when their reader has gone.
#include <gtest/gtest.h>

#include "models/element_lines.h"

namespace tamur::test {
namespace {

ModelText ModelWithBarsCasesAndMessages()
{
    return ModelText()
        .Section("#Materiaux", {"S355 2.1e11 0.3 78500 1.2e-5 0.02"})
        .Section("#Cas", {"1 Permanent 1 G", "2 Vent 1 W"})
        .Elements({ElementLine(2, 41).Points({"0 0 0", "0 0 3"}).Columns("1 1 0 0 1 1 1 1 1 1 0"),
                   // The case does not exist, so the load is refused with a message.
                   ElementLine(8, 42).Columns("99 0 0 -1 0 0")});
}

TEST(AccessorsAfterTheirReader, BarsAreStillServed)
{
    auto reader = Imported(ModelWithBarsCasesAndMessages());
    const auto bars = Filaires(*reader);
    reader = {};
    ASSERT_EQ(bars.Size(), 1);
    const auto bar = bars.At(0);
    EXPECT_EQ(bar->identifier, 41);
    EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "S355");
    EXPECT_EQ(bar->endPoint.z, 3.0);
}

TEST(AccessorsAfterTheirReader, CasesAreStillServed)
{
    auto reader = Imported(ModelWithBarsCasesAndMessages());
    const auto cases = Cas(*reader);
    reader = {};
    ASSERT_EQ(cases.Size(), 2);
    EXPECT_EQ(cases.At(1)->Num, 2);
    EXPECT_EQ(Utf8(cases.At(1)->Titre), "Vent");
}

TEST(AccessorsAfterTheirReader, MessagesAreStillServed)
{
    auto reader = Imported(ModelWithBarsCasesAndMessages());
    const auto messages = GetAccessor(*reader, &ITAMURStructureReader::GetMessageAccessor);
    reader = {};
    LONG count = 0;
    EXPECT_EQ(messages->GetNbMessages(&count), S_OK);
    ASSERT_EQ(count, 1);
    BSTR text = nullptr;  // lent
    EXPECT_EQ(messages->GetMessageAtRank(0, &text), S_OK);
    EXPECT_EQ(Utf8(text), "ATTENTION: Import Poids propre cas numéro 99 impossible");
}

}  // namespace
}  // namespace tamur::test
