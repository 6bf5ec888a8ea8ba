// The strings and the task memory that hosts share with the component: the system's on Windows, and
// elsewhere those that stand in for them.
#include <gtest/gtest.h>
#include <oaidl.h>
#include <windows.h>

#include <cstring>
#include <string_view>

namespace tamur::test {
namespace {

using WideStringView = std::basic_string_view<OLECHAR>;

// Takes the string: its characters, the NUL after them, and that it can be freed.
void ExpectString(BSTR text, WideStringView expected)
{
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(WideStringView(text, SysStringLen(text)), expected);
    EXPECT_EQ(SysStringByteLen(text), expected.size() * sizeof(OLECHAR));
    EXPECT_EQ(text[expected.size()], 0);
    SysFreeString(text);
}

TEST(Strings, OfEveryShortLengthAreCopiedWhole)
{
    const WideStringView alphabet = OLESTR("abcdefghijklmnopqrstuvwxyz");
    for (UINT length = 0; length <= alphabet.size(); ++length) {
        ExpectString(SysAllocStringLen(alphabet.data(), length), alphabet.substr(0, length));
    }
}

TEST(Strings, EndAtTheFirstNulUnlessTheyHaveALength)
{
    constexpr OLECHAR text[] = {'a', 0, 'b', 0};
    ExpectString(SysAllocString(text), OLESTR("a"));
    ExpectString(SysAllocStringLen(text, 3), WideStringView(text, 3));
}

TEST(Strings, OfBytesHaveAnyNumberOfThem)
{
    BSTR text = SysAllocStringByteLen("abc", 3);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(SysStringByteLen(text), 3u);
    EXPECT_EQ(SysStringLen(text), 1u);
    EXPECT_EQ(std::memcmp(text, "abc\0", 4), 0);
    SysFreeString(text);
}

TEST(Strings, WithoutCharactersToCopyAreRoomForThem)
{
    BSTR text = SysAllocStringLen(nullptr, 5);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(SysStringLen(text), 5u);
    EXPECT_EQ(text[5], 0);
    SysFreeString(text);
}

TEST(Strings, LongerThanAnyMemoryAreRefused)
{
    EXPECT_EQ(SysAllocStringLen(nullptr, 0xFFFFFFFFu), nullptr);
}

TEST(Strings, NoneHasNoLengthAndNothingToFree)
{
    EXPECT_EQ(SysAllocString(nullptr), nullptr);
    EXPECT_EQ(SysStringLen(nullptr), 0u);
    EXPECT_EQ(SysStringByteLen(nullptr), 0u);
    SysFreeString(nullptr);
}

TEST(TaskMemory, OfNoBytesIsABlock)
{
    void* const block = CoTaskMemAlloc(0);
    EXPECT_NE(block, nullptr);
    CoTaskMemFree(block);
    CoTaskMemFree(nullptr);
}

TEST(TaskMemory, KeepsItsBytesWhenItGrowsAndShrinks)
{
    void* block = CoTaskMemRealloc(nullptr, 8);
    ASSERT_NE(block, nullptr);
    std::memcpy(block, "tamours", 8);
    for (const size_t size : {size_t{100000}, size_t{8}}) {
        block = CoTaskMemRealloc(block, size);
        ASSERT_NE(block, nullptr);
        EXPECT_STREQ(static_cast<const char*>(block), "tamours");
    }
    EXPECT_EQ(CoTaskMemRealloc(block, 0), nullptr);  // that frees it
}

TEST(TaskMemory, ChangedFromNoneToNoBytesIsABlock)
{
    void* const block = CoTaskMemRealloc(nullptr, 0);
    EXPECT_NE(block, nullptr);
    CoTaskMemFree(block);
}

}  // namespace
}  // namespace tamur::test
