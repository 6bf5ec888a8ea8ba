// Counts and ranks, the same for every table.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "models/every_table.h"

namespace tamur::test {
namespace {

// A record whose every byte can be told from one that an accessor wrote.
template <class PublicRecord>
struct MarkedRecord {
    MarkedRecord() { std::memset(static_cast<void*>(&record), 0xA5, sizeof record); }

    [[nodiscard]] bool IsUntouched() const
    {
        const MarkedRecord fresh;
        return std::memcmp(&record, &fresh.record, sizeof record) == 0;
    }

    PublicRecord record;
};

template <class Table>
void ExpectRefused(const Table& table, LONG rank)
{
    using Traits = TableTraits<Table>;
    MarkedRecord<typename Traits::PublicRecord> marked;
    EXPECT_EQ(Traits::AtRank(table.TheAccessor(), rank, &marked.record), E_FAIL) << rank;
    EXPECT_TRUE(marked.IsUntouched()) << rank;
}

template <class Table>
void ExpectRanksOutsideRefused(const Table& table)
{
    for (const LONG rank : {LONG{-1}, table.Size(), table.Size() + 1,
                            std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()}) {
        ExpectRefused(table, rank);
    }
}

TEST(AccessorRanks, ModelOfTheseTestsFillsEveryTable)
{
    const auto reader = Imported(EveryTable());
    ForEachTable(
        [&](const char* name, auto table) { EXPECT_GE(table(*reader).Size(), 1) << name; });
}

TEST(AccessorRanks, OutsideTheTableGiveFailureAndWriteNothing)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        const auto records = table(*reader);
        if constexpr (!TableTraits<decltype(records)>::kEndsTheProcess) {
            ExpectRanksOutsideRefused(records);
        }
    });
}

TEST(AccessorRanks, OfEmptyTablesGiveFailure)
{
    const auto reader = NewReader();
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        const auto records = table(*reader);
        EXPECT_EQ(records.Size(), 0);
        if constexpr (!TableTraits<decltype(records)>::kEndsTheProcess) {
            ExpectRanksOutsideRefused(records);
        }
    });
}

TEST(AccessorRanksDeathTest, OutsideSurfacesOpeningsWallsAndNodesEndTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        SCOPED_TRACE(name);
        const auto records = table(*reader);
        if constexpr (TableTraits<decltype(records)>::kEndsTheProcess) {
            for (const LONG rank : {LONG{-1}, records.Size()}) {
                EXPECT_DEATH((void)records.At(rank), "") << rank;
            }
        }
    });
}

// What the record held is the host's affair: garbage must neither be read nor freed.
TEST(AccessorRanks, RecordIsOverwrittenWithoutFreeingWhatItHeld)
{
    const auto reader = Imported(EveryTable());
    ForEachTable([&](const char* name, auto table) {
        using Traits = TableTraits<decltype(table(*reader))>;
        using PublicRecord = typename Traits::PublicRecord;
        SCOPED_TRACE(name);
        const auto records = table(*reader);
        MarkedRecord<PublicRecord> marked;
        if constexpr (requires { marked.record.ElemGrp; }) {
            marked.record.ElementType = nullptr;  // stays as it is
        }
        ASSERT_EQ(Traits::AtRank(records.TheAccessor(), 0, &marked.record), S_OK);
        EXPECT_FALSE(marked.IsUntouched());
        VisitFields(marked.record, FieldFreer());
    });
}

}  // namespace
}  // namespace tamur::test
