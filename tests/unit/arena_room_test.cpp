#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "model/arena.h"
#include "model/sanitizer.h"
#include "model/text.h"

namespace tamur {
namespace {

// What is reserved may be filled to its last byte, whatever its size: neither the next piece nor
// the next block is touched. The sizes are too large for what is left of any block.
TEST(ArenaRoom, IsAllOfItThere)
{
    for (std::size_t size = 100000; size < 100020; ++size) {
        Arena arena;
        char* const first = arena.Reserve(size);
        std::memset(first, 0xFF, size);
        arena.Commit(first + size);
        const std::vector<char> neighbour(size, 'n');
        char* const second = arena.Reserve(size);
        std::memset(second, 0xFF, size);
        arena.Commit(second + size);
        char* const small = arena.Allocate(8);
        std::memset(small, 0, 8);
        EXPECT_EQ(std::string(first, size), std::string(size, '\xFF'));
        EXPECT_EQ(std::string(second, size), std::string(size, '\xFF'));
        EXPECT_EQ(neighbour, std::vector<char>(size, 'n'));
    }
}

// A block that was filled to its end has no room: the next piece lies in another.
TEST(ArenaRoom, IsNoneAfterAFullBlock)
{
    for (std::size_t size = 100000; size < 100016; ++size) {
        Arena arena;
        char* const piece = arena.Reserve(size);
        arena.Commit(piece + size);
        char* const next = arena.Allocate(8);
        EXPECT_TRUE(next < piece || next >= piece + size) << size;
        EXPECT_NE(next, piece + (size + 7) / 8 * 8) << size;
    }
}

TEST(ArenaRoom, IsTakenOnlyAsFarAsItIsCommitted)
{
    Arena arena;
    char* const first = arena.Reserve(1000);
    EXPECT_EQ(arena.Reserve(1000), first);
    arena.Commit(first + 3);
    constexpr std::size_t kStep = 8 + sanitizer::kGap;
    EXPECT_EQ(arena.Reserve(1000), first + kStep);
    EXPECT_EQ(arena.Allocate(8), first + kStep);
    EXPECT_EQ(arena.Allocate(8), first + 2 * kStep);
}

TEST(ArenaRoom, HoldsTextsOfEveryLength)
{
    for (const std::size_t start : {std::size_t{0}, std::size_t{8000}, std::size_t{50000}}) {
        Arena arena;
        std::vector<Text> texts;
        for (std::size_t i = 0; i < 20; ++i) {
            texts.push_back(MakeText(arena, std::string(start + i, static_cast<char>('a' + i))));
        }
        for (std::size_t i = 0; i < 20; ++i) {
            const auto expected = static_cast<OLECHAR>('a' + i);
            const WideStringView text(texts[i].Data(), texts[i].ByteLength() / sizeof(OLECHAR));
            EXPECT_EQ(text, WideString(start + i, expected));
        }
    }
}

}  // namespace
}  // namespace tamur
