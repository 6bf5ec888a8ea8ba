// A record is written whole: what the host left in it shows nowhere, also not in the fields that
// the file has no column for.
#include <gtest/gtest.h>

#include <cstring>

#include "models/every_table.h"
#include "conformance/load_model.h"

namespace tamur::test {
namespace {

// Every field with the bytes of its value, a string's text or an array's values.
class ValueCollector {
 public:
    template <class Value>
    void Field(const char* name, Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            Array(name, value, static_cast<int>(SysStringLen(value)));
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        } else {
            Array(name, &value, 1);
        }
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        std::string bytes(static_cast<std::size_t>(count) * sizeof(Value), '\0');
        if (!bytes.empty()) std::memcpy(bytes.data(), values, bytes.size());
        values_.emplace_back(name, bytes);
    }

    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& Values() const
    {
        return values_;
    }

 private:
    std::vector<std::pair<std::string, std::string>> values_;
};

template <class PublicRecord>
auto ValuesOf(PublicRecord& record)
{
    ValueCollector collector;
    VisitFields(record, collector);
    return collector.Values();
}

// The two fields of loads on groups that are the caller's.
template <class PublicRecord>
void ClearWhatIsTheCallers(PublicRecord& record)
{
    if constexpr (std::is_same_v<PublicRecord, TMRChargePoidsPropre> ||
                  std::is_same_v<PublicRecord, TMRChargeThermique>) {
        record.GroupNumber = 0;
        record.ElementType = nullptr;
    }
}

// Reads over a record all of whose bytes are `filling`.
template <class Table>
auto ReadOver(const Table& table, LONG rank, int filling)
{
    using Traits = TableTraits<Table>;
    Record<typename Traits::PublicRecord> record;
    typename Traits::PublicRecord& fields = record.Get();
    std::memset(static_cast<void*>(&fields), filling, sizeof fields);
    Check(Traits::AtRank(table.TheAccessor(), rank, &fields), "reading a record");
    ClearWhatIsTheCallers(fields);
    return record;
}

TEST(EveryRecord, IsTheSameWhateverTheHostLeftInIt)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        const auto records = table(*reader);
        ASSERT_GT(records.Size(), 0);
        for (LONG rank = 0; rank < records.Size(); ++rank) {
            auto overZeros = ReadOver(records, rank, 0);
            auto overOthers = ReadOver(records, rank, 0x5A);
            EXPECT_EQ(ValuesOf(overOthers.Get()), ValuesOf(overZeros.Get()));
        }
    });
}

TEST(EveryRecord, OfModalSettingsIsTheSameWhateverTheHostLeftInIt)
{
    const auto reader = Imported(EveryTable());
    const auto loads = GetAccessor(*reader, &ITAMURStructureReader::GetChargeAccessor);
    Record<TMRModes> zeros, others;
    std::memset(static_cast<void*>(&others.Get()), 0x5A, sizeof(TMRModes));
    ASSERT_EQ(loads->GetModes(&zeros.Get()), S_OK);
    ASSERT_EQ(loads->GetModes(&others.Get()), S_OK);
    EXPECT_EQ(ValuesOf(others.Get()), ValuesOf(zeros.Get()));
}

TEST(EveryRecord, HasZerosWhereTheFileHasNoColumn)
{
    const auto reader = Imported(EveryTable());
    const auto mass = ReadOver(Masses(*reader), 0, 0x5A);
    EXPECT_EQ(mass->GroupNumber, 0);
    EXPECT_EQ(mass->NumCas, 0);
    EXPECT_EQ(mass->Repere, 0);
    EXPECT_EQ(ReadOver(AppuisLineaires(*reader), 0, 0x5A)->Repere, APP_P_REP_GLOBAL);
    EXPECT_EQ(ReadOver(ChargesPoidsPropre(*reader), 0, 0x5A)->Repere, 0);
    EXPECT_EQ(ReadOver(ChargesThermiques(*reader), 0, 0x5A)->Repere, 0);
}

}  // namespace
}  // namespace tamur::test
