#include "model/sorted_map.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace tamur {
namespace {

constexpr int kCount = 3000;  // many leaves

// The numbers of `order(0)` to `order(kCount - 1)`, some of them often: the last counts.
template <class Order>
void ExpectTheSameAsAMap(Order order)
{
    SortedMap<int> map;
    std::map<std::int32_t, int> expected;
    for (int i = 0; i < kCount; ++i) {
        map.FindOrAdd(order(i)) = i;
        expected[order(i)] = i;
    }
    map.Settle();
    ASSERT_EQ(map.Size(), expected.size());
    std::size_t rank = 0;
    for (const auto& [number, value] : expected) {
        ASSERT_EQ(map.AtRank(rank), value) << rank;
        ASSERT_NE(map.Find(number), nullptr) << number;
        ASSERT_EQ(*map.Find(number), value) << number;
        ASSERT_EQ(map.Find(number - 1) != nullptr, expected.contains(number - 1)) << number;
        ++rank;
    }
}

TEST(SortedMap, KeepsTheLastValueOfEachNumberInOrder)
{
    std::mt19937 random(1);
    std::vector<std::int32_t> numbers(kCount);
    for (std::int32_t& number : numbers) number = static_cast<std::int32_t>(random());
    ExpectTheSameAsAMap([](int i) { return i; });
    ExpectTheSameAsAMap([](int i) { return -i; });
    ExpectTheSameAsAMap([](int i) { return i % 2 == 0 ? i : -i; });
    ExpectTheSameAsAMap([](int i) { return i * 1103 % 1000; });
    ExpectTheSameAsAMap([&](int i) { return numbers[static_cast<std::size_t>(i)]; });
    ExpectTheSameAsAMap([](int i) { return i == 0 ? INT32_MAX : INT32_MIN + 1 + i % 5; });
}

TEST(SortedMap, HasNothingAtFirst)
{
    SortedMap<int> map;
    map.Settle();
    EXPECT_EQ(map.Size(), 0u);
    EXPECT_EQ(map.Find(0), nullptr);
    EXPECT_EQ(map.FindOrAdd(7), 0);
}

TEST(SortedMap, HasRanksAgainAfterMoreWasAdded)
{
    constexpr int kMany = 2000;
    SortedMap<int> map;
    for (int i = 1; i < kMany; i += 2) map.FindOrAdd(i) = i;
    map.Settle();
    EXPECT_EQ(map.AtRank(kMany / 2 - 1), kMany - 1);
    for (int i = 0; i < kMany; i += 2) map.FindOrAdd(i) = i;
    map.Settle();
    for (int i = 0; i < kMany; ++i) ASSERT_EQ(map.AtRank(static_cast<std::size_t>(i)), i);
}

}  // namespace
}  // namespace tamur
