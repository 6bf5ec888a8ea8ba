// Ranks of nodes, surfaces, openings and walls are not checked: one outside the table is an error
// of the host and ends the process instead of giving a result code.
#include <gtest/gtest.h>

#include <climits>

#include "models/one_of_each.h"

namespace tamur::test {
namespace {

// Ends the process, or comes back with whatever the call gave.
template <class PublicRecord>
void CallAt(const Range<PublicRecord>& range, LONG rank)
{
    PublicRecord record = {};
    (range.TheAccessor().*range.kGetAtRank)(rank, &record);
}

template <class Elements>
void ExpectDeathOutside(const Elements& elements)
{
    EXPECT_DEATH(CallAt(elements, -1), "");
    EXPECT_DEATH(CallAt(elements, INT_MIN), "");
    EXPECT_DEATH(CallAt(elements, elements.Size()), "");
    EXPECT_DEATH(CallAt(elements, INT_MAX), "");
}

TEST(RankCheckDeathTest, NodesOutsideTheTable)
{
    const auto reader = Imported(OneOfEachModel(7));
    ExpectDeathOutside(Nodes(*reader));
}

TEST(RankCheckDeathTest, SurfacesOutsideTheTable)
{
    const auto reader = Imported(OneOfEachModel(7));
    ExpectDeathOutside(Surfaciques(*reader));
}

TEST(RankCheckDeathTest, OpeningsOutsideTheTable)
{
    const auto reader = Imported(OneOfEachModel(7));
    ExpectDeathOutside(Ouvertures(*reader));
}

TEST(RankCheckDeathTest, WallsOutsideTheTable)
{
    const auto reader = Imported(OneOfEachModel(7));
    ExpectDeathOutside(Parois(*reader));
}

TEST(RankCheckDeathTest, EmptyTables)
{
    const auto reader = NewReader();
    EXPECT_DEATH(CallAt(Nodes(*reader), 0), "");
    EXPECT_DEATH(CallAt(Surfaciques(*reader), 0), "");
    EXPECT_DEATH(CallAt(Ouvertures(*reader), 0), "");
    EXPECT_DEATH(CallAt(Parois(*reader), 0), "");
}

}  // namespace
}  // namespace tamur::test
