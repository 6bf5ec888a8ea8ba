// The accessors that serve copies of their own: cases and messages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "conformance/load_model.h"
#include "models/element_lines.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Case 2 is disabled by naming a case that is not there.
ModelText ModelWithADisabledCase()
{
    return LoadModel({"1 A 1 a 0", "2 B 2 b 0", "3 C 2 c 0"},
                     {"2 2 99 1 32767 0", "3 2 1 1 32767 0"});
}

TEST(CaseAccessor, DisabledCasesAreNotCountedAndTakeNoRank)
{
    const auto reader = Imported(ModelWithADisabledCase());
    const auto cases = Cas(*reader);
    ASSERT_EQ(cases.Size(), 2);
    EXPECT_EQ(cases.At(0)->Num, 1);
    EXPECT_EQ(cases.At(1)->Num, 3);
    EXPECT_EQ(cases.At(1)->Type, 2);
    EXPECT_EQ(Utf8(cases.At(1)->Titre), "C");
    EXPECT_EQ(Utf8(cases.At(1)->Code), "c");
    TMRCas record;
    EXPECT_EQ(cases.TheAccessor().GetCasAtRank(2, &record), E_FAIL);
}

TEST(CaseAccessor, AllCasesMayBeDisabled)
{
    const auto reader = Imported(LoadModel({"2 B 2 b 0"}, {"2 2 99 1 32767 0"}));
    EXPECT_EQ(Cas(*reader).Size(), 0);
}

TEST(CaseAccessor, TypeTellsTheLoadsThatTheElementsBrought)
{
    const auto reader = Imported(ModelText()
                                     .Section("#Cas", {"1 A 1 a 0", "2 B 1 b 0", "3 C 1 c 0"})
                                     .Elements({ElementLine(8).Columns("1 0 0 -1 0 0"),
                                                ElementLine(13).Columns("2 15 0 0 0 0")}));
    std::vector<int> types;
    for (const auto& loadCase : Cas(*reader)) types.push_back(loadCase->Type);
    EXPECT_THAT(types, ElementsAre(12, 13, 1));
}

TEST(CaseAccessor, KeepsTheCasesThatItWasMadeWith)
{
    const auto reader = NewReader();
    const auto before = Cas(*reader);
    ASSERT_EQ(ImportText(*reader, ModelWithADisabledCase()), S_OK);
    const auto between = Cas(*reader);
    ASSERT_EQ(ImportText(*reader, ModelText().Section("#Cas", {"7 G 1 g 0"})), S_OK);
    EXPECT_EQ(before.Size(), 0);
    ASSERT_EQ(between.Size(), 2);
    EXPECT_EQ(between.At(1)->Num, 3);
    EXPECT_EQ(Utf8(between.At(1)->Titre), "C");
    EXPECT_THAT(CaseNumbersOf(*reader), ElementsAre(7));
}

// ------------------------------------------------------------------ messages

// Self-weight and thermal loads of cases that are not there, each with its message.
ModelText ModelWithTwoMessages()
{
    return ModelText().Elements(
        {ElementLine(8).Columns("98 0 0 -1 0 0"), ElementLine(13).Columns("99 15 0 0 0 0")});
}

constexpr char kFirst[] = "ATTENTION: Import Poids propre cas numéro 98 impossible";
constexpr char kSecond[] = "ATTENTION: Import Effet thermique cas numéro 99 impossible";

ComPtr<ITMRMessageAccessor> MessageAccessorOf(ITAMURStructureReader& reader)
{
    return GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
}

BSTR LentAt(ITMRMessageAccessor& accessor, LONG rank)
{
    BSTR lent = nullptr;
    EXPECT_EQ(accessor.GetMessageAtRank(rank, &lent), S_OK);
    return lent;
}

TEST(MessageAccessor, ServesTheMessagesInOrder)
{
    EXPECT_THAT(Messages(*NewReader()), IsEmpty());
    EXPECT_THAT(Messages(*Imported(ModelText())), IsEmpty());
    EXPECT_THAT(Messages(*Imported(ModelWithTwoMessages())), ElementsAre(kFirst, kSecond));
}

TEST(MessageAccessor, LendsTheSameStringAtEveryCall)
{
    const auto reader = Imported(ModelWithTwoMessages());
    const auto accessor = MessageAccessorOf(*reader);
    EXPECT_EQ(LentAt(*accessor, 0), LentAt(*accessor, 0));
    EXPECT_NE(LentAt(*accessor, 0), LentAt(*accessor, 1));
}

TEST(MessageAccessor, HasStringsOfItsOwn)
{
    const auto reader = Imported(ModelWithTwoMessages());
    const auto one = MessageAccessorOf(*reader);
    const auto other = MessageAccessorOf(*reader);
    EXPECT_NE(LentAt(*one, 0), LentAt(*other, 0));
    EXPECT_EQ(Utf8(LentAt(*one, 0)), Utf8(LentAt(*other, 0)));
}

TEST(MessageAccessor, RanksOutsideGiveFailureAndWriteNothing)
{
    const auto reader = Imported(ModelWithTwoMessages());
    const auto accessor = MessageAccessorOf(*reader);
    OLECHAR mark = 0;
    for (const LONG rank : {-1, 2, 3}) {
        BSTR lent = &mark;
        EXPECT_EQ(accessor->GetMessageAtRank(rank, &lent), E_FAIL) << rank;
        EXPECT_EQ(lent, &mark) << rank;
    }
}

TEST(MessageAccessor, KeepsTheMessagesThatItWasMadeWithWhileAnImportAddsMore)
{
    const auto reader = Imported(ModelWithTwoMessages());
    const auto before = MessageAccessorOf(*reader);
    const BSTR lent = LentAt(*before, 0);
    ASSERT_EQ(ImportText(*reader, ModelWithTwoMessages()), S_OK);
    LONG count = 0;
    EXPECT_EQ(before->GetNbMessages(&count), S_OK);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(LentAt(*before, 0), lent);
    EXPECT_THAT(Messages(*reader), ElementsAre(kFirst, kSecond, kFirst, kSecond));
}

}  // namespace
}  // namespace tamur::test
