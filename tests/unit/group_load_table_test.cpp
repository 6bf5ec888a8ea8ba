#include "model/group_load_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tamur {
namespace {

// The table as one would write it first: what is removed is erased.
class PlainTable {
 public:
    void Append(const GroupLoad& load) { loads_.push_back(load); }
    void RemoveCase(std::int32_t caseNumber)
    {
        std::erase_if(loads_, [&](const GroupLoad& load) { return load.caseNumber == caseNumber; });
    }
    bool RemoveFirstOfCase(std::int32_t caseNumber)
    {
        const auto first = FirstOf(caseNumber);
        if (first == loads_.end()) return false;
        loads_.erase(first);
        return true;
    }
    [[nodiscard]] std::vector<GroupLoad>::iterator FirstOf(std::int32_t caseNumber)
    {
        return std::find_if(loads_.begin(), loads_.end(),
                            [&](const GroupLoad& load) { return load.caseNumber == caseNumber; });
    }
    [[nodiscard]] const std::vector<GroupLoad>& Loads() const { return loads_; }

 private:
    std::vector<GroupLoad> loads_;
};

class Pair {
 public:
    void Append(std::int32_t caseNumber)
    {
        GroupLoad load;
        load.caseNumber = caseNumber;
        load.identifier = ++identifier_;
        table_.Append(load);
        plain_.Append(load);
        EXPECT_EQ(table_.Newest().identifier, identifier_);
        EXPECT_EQ(table_.FirstOfNewest().identifier, plain_.FirstOf(caseNumber)->identifier);
    }
    void RemoveCase(std::int32_t caseNumber)
    {
        table_.RemoveCase(caseNumber);
        plain_.RemoveCase(caseNumber);
    }
    void RemoveFirstOfCase(std::int32_t caseNumber)
    {
        EXPECT_EQ(table_.RemoveFirstOfCase(caseNumber), plain_.RemoveFirstOfCase(caseNumber));
    }
    void ExpectTheSame()
    {
        table_.Settle();
        ASSERT_EQ(table_.Size(), plain_.Loads().size());
        for (std::size_t rank = 0; rank < table_.Size(); ++rank) {
            ASSERT_EQ(table_[rank].identifier, plain_.Loads()[rank].identifier) << rank;
        }
    }

 private:
    Arena arena_;
    GroupLoadTable table_{arena_};
    PlainTable plain_;
    std::uint32_t identifier_ = 0;
};

TEST(GroupLoadTable, HoldsWhatAPlainTableWould)
{
    std::mt19937 random(1);
    for (const unsigned cases : {1u, 3u, 40u}) {
        Pair tables;
        for (int i = 0; i < 4000; ++i) {
            const std::int32_t caseNumber = static_cast<std::int32_t>(random() % cases);
            switch (random() % 40) {
                case 0: tables.RemoveCase(caseNumber); break;
                case 1:
                case 2: tables.RemoveFirstOfCase(caseNumber); break;
                default: tables.Append(caseNumber); break;
            }
            if (i % 97 == 0) tables.ExpectTheSame();
        }
        tables.ExpectTheSame();
    }
}

TEST(GroupLoadTable, FindsLoadsPastMoreThanABlockOfRemovedOnes)
{
    Pair tables;
    for (const std::int32_t caseNumber : {1, 2, 3}) {
        for (int i = 0; i < 200; ++i) tables.Append(caseNumber);
    }
    tables.RemoveCase(2);
    tables.ExpectTheSame();
    tables.RemoveCase(1);
    tables.ExpectTheSame();
    tables.RemoveCase(3);
    tables.ExpectTheSame();
    tables.Append(1);
    tables.ExpectTheSame();
}

// What is taken out last leaves nothing behind that would shift later loads.
TEST(GroupLoadTable, TakesUpTheRoomOfLoadsRemovedAtTheEnd)
{
    Pair tables;
    for (int i = 0; i < 64; ++i) tables.Append(i);
    for (int i = 0; i < 64; ++i) tables.Append(100);
    tables.RemoveFirstOfCase(63);
    tables.ExpectTheSame();
    tables.RemoveCase(100);
    for (int i = 0; i < 100; ++i) tables.Append(200 + i);
    tables.ExpectTheSame();
}

}  // namespace
}  // namespace tamur
