// The kinds of records have the names of the contract's tables.
#include "host/kinds.h"

#include <gmock/gmock.h>
#include <tamur/ranges.h>

#include <set>
#include <string>

namespace tamur::host {
namespace {

TEST(Kinds, NameEveryTableOfTheContractOnce)
{
    std::multiset<std::string> ofContract, ofKinds;
    ForEachTableType([&](auto table) { ofContract.insert(decltype(table)::kName); });
    for (int i = 0; i < kKindCount; ++i) {
        const std::string_view name = TableNameOf(static_cast<Kind>(i));
        if (!name.empty()) ofKinds.emplace(name);
    }
    EXPECT_EQ(ofKinds, ofContract);
}

TEST(Kinds, AreFoundByTheNumberOfTheirLines)
{
    EXPECT_EQ(KindOfElement(2), Kind::kBar);
    EXPECT_EQ(KindOfElement(22), Kind::kConstructionLine);
    for (int number : {0, -1, 14, 18, 19, 23}) EXPECT_EQ(KindOfElement(number), Kind::kNone);
}

}  // namespace
}  // namespace tamur::host
