// UTF-16 and UTF-8.
#include <gtest/gtest.h>
#include <tamur/utf8.h>

#include <string>
#include <vector>

namespace tamur {
namespace {

struct Spelling {
    WideString wide;
    std::string utf8;
};

// The first and the last character of every length, and one in the middle with every bit in use.
const std::vector<Spelling> kCharacters = {
    {{0x01}, "\x01"},
    {{0x7F}, "\x7F"},
    {{0x80}, "\xC2\x80"},
    {{0xE9}, "\xC3\xA9"},
    {{0x7FF}, "\xDF\xBF"},
    {{0x800}, "\xE0\xA0\x80"},
    {{0x20AC}, "\xE2\x82\xAC"},
    {{0xD7FF}, "\xED\x9F\xBF"},
    {{0xE000}, "\xEE\x80\x80"},
    {{0xFFFF}, "\xEF\xBF\xBF"},
    {{0xD800, 0xDC00}, "\xF0\x90\x80\x80"},
    {{0xD83D, 0xDE00}, "\xF0\x9F\x98\x80"},
    {{0xDAAB, 0xDEAF}, "\xF2\xBA\xBA\xAF"},
    {{0xDBFF, 0xDFFF}, "\xF4\x8F\xBF\xBF"},
};

TEST(Utf8, EveryLengthOfCharacterGoesBothWays)
{
    WideString allWide;
    std::string all;
    for (const auto& [wide, utf8] : kCharacters) {
        EXPECT_EQ(ToUtf8(wide.c_str()), utf8);
        EXPECT_EQ(FromUtf8(utf8), wide) << utf8;
        allWide += wide;
        all += utf8;
    }
    EXPECT_EQ(ToUtf8(allWide.c_str()), all);
    EXPECT_EQ(FromUtf8(all), allWide);
    EXPECT_EQ(ToUtf8(OLESTR("")), "");
    EXPECT_EQ(FromUtf8(""), WideString());
}

// Half a pair is no character: a question mark, and what is beside it stays.
TEST(Utf8, HalvesOfPairsBecomeQuestionMarks)
{
    for (const WideString& half : std::vector<WideString>{{0xD800}, {0xDBFF}, {0xDC00}, {0xDFFF}}) {
        EXPECT_EQ(ToUtf8((OLESTR("a") + half).c_str()), "a?");
        EXPECT_EQ(ToUtf8((half + OLESTR("b")).c_str()), "?b");
    }
    EXPECT_EQ(ToUtf8(WideString({0xDC00, 0xD800}).c_str()), "??");
    EXPECT_EQ(ToUtf8(WideString({0xD800, 0xE000}).c_str()), "?\xEE\x80\x80");
    EXPECT_EQ(ToUtf8(WideString({0xD800, 0xD800, 0xDC00}).c_str()), "?\xF0\x90\x80\x80");
}

// One question mark for each byte that starts no character, and the next byte may start one.
TEST(Utf8, BytesThatAreNoCharacterBecomeQuestionMarks)
{
    const std::vector<std::pair<std::string, WideString>> broken = {
        {"\x80", OLESTR("?")},  // nothing to continue
        {"\xBF\xBF", OLESTR("??")},
        {"\xC0\xAF", OLESTR("??")},
        {"\xBF"
         "a",
         OLESTR("?a")},
        {"\xC3", OLESTR("?")},  // ends too early
        {"\xC3"
         "a",
         OLESTR("?a")},
        {"\xE2\x82", OLESTR("??")},
        {"\xE2\x82"
         "a",
         OLESTR("??a")},
        {"\xF0\x9F\x98", OLESTR("???")},
        {"\xC3\xC3\xA9", OLESTR("?\u00E9")},
        {"\xC1\xBF", OLESTR("??")},  // longer than need be
        {"\xE0\x9F\xBF", OLESTR("???")},
        {"\xF0\x8F\xBF\xBF", OLESTR("????")},
        {"\xED\xA0\x80", OLESTR("???")},  // half a pair
        {"\xED\xBF\xBF", OLESTR("???")},
        {"\xF4\x90\x80\x80", OLESTR("????")},  // beyond the last character
        {"\xF7\x80\x80\x80", OLESTR("????")},
        {"\xF8\x80\x80\x80\x80", OLESTR("?????")},
        {"\xFF", OLESTR("?")},
    };
    for (const auto& [bytes, expected] : broken) {
        EXPECT_EQ(FromUtf8(bytes), expected) << testing::PrintToString(bytes);
    }
}

}  // namespace
}  // namespace tamur
