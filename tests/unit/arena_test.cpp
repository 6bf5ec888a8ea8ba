#include "model/arena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tamur {
namespace {

struct Piece {
    std::uint64_t* values;
    std::size_t count;
};

// Pieces of changing sizes, each filled with its number.
std::vector<Piece> Fill(Arena& arena, std::size_t pieces, std::size_t largest)
{
    std::vector<Piece> all;
    for (std::size_t i = 0; i < pieces; ++i) {
        const std::size_t count = 1 + i * 7919 % largest;
        all.push_back({arena.Array<std::uint64_t>(count), count});
        for (std::size_t k = 0; k < count; ++k) {
            EXPECT_EQ(all.back().values[k], 0u);
            all.back().values[k] = i;
        }
    }
    return all;
}

void ExpectUntouched(const std::vector<Piece>& pieces)
{
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pieces[i].values) % alignof(std::uint64_t), 0u);
        for (std::size_t k = 0; k < pieces[i].count; ++k) ASSERT_EQ(pieces[i].values[k], i);
    }
}

// Up to the largest blocks, which are taken from the system in another way than small ones.
TEST(Arena, GivesMegabytesInSmallPiecesThatStayWhatTheyWere)
{
    Arena arena;
    ExpectUntouched(Fill(arena, 20000, 200));
}

TEST(Arena, GivesPiecesLargerThanAnyOfItsBlocks)
{
    Arena arena;
    ExpectUntouched(Fill(arena, 5, 3000000));
}

// Memory that the system gives in large pages only when a block is a multiple of them.
TEST(Arena, GivesBlocksOfWholeAndOfBrokenLargePages)
{
    constexpr std::size_t kLargePage = std::size_t{2} << 20;
    Arena arena;
    std::vector<Piece> pieces;
    for (const std::size_t size : {2 * kLargePage, 2 * kLargePage + 8}) {
        const std::size_t count = size / sizeof(std::uint64_t);
        pieces.push_back({arena.Array<std::uint64_t>(count), count});
        for (std::size_t k = 0; k < count; ++k) pieces.back().values[k] = pieces.size() - 1;
    }
    ExpectUntouched(pieces);
}

TEST(Arena, GivesNothingForNoValues)
{
    Arena arena;
    EXPECT_EQ(arena.Array<std::uint64_t>(0), nullptr);
}

}  // namespace
}  // namespace tamur
