// Where a line ends, whichever way it came out of the file's buffer.
#include <gtest/gtest.h>

#include <string>

#include "import/file/model_file.h"
#include "support/memory_source.h"

namespace tamur {
namespace {

constexpr std::size_t kLongest = 49999;

// The next line is `text`, and ends there.
void ExpectNext(ModelFile& file, const std::string& text)
{
    Line line;
    ASSERT_TRUE(file.ReadModelLine(line));
    ASSERT_EQ(line.end - line.text, static_cast<std::ptrdiff_t>(text.size()));
    ASSERT_EQ(std::string(line.text, line.end), text);
    ASSERT_EQ(*line.end, '\0');
    EXPECT_TRUE(line.Holds(static_cast<std::int32_t>(text.size())));
    EXPECT_FALSE(line.Holds(static_cast<std::int32_t>(text.size()) + 1));
}

TEST(LineExtent, OfTheLastLineWithoutALineEnd)
{
    for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
        test::MemorySource source("first\r\n1 7 0 1 0", piece);
        ModelFile file(source);
        ExpectNext(file, "first");
        ExpectNext(file, "1 7 0 1 0");
        Line line;
        EXPECT_FALSE(file.ReadModelLine(line));
        EXPECT_TRUE(line.IsEmpty());
        EXPECT_EQ(line.end, line.text);
    }
}

// Lines of 1000 characters in their turn lie over every end of a buffer.
TEST(LineExtent, OfLinesThatABufferHoldsInPart)
{
    std::string content;
    constexpr int kLines = 1500;
    const auto text = [](int i) {
        return std::string(static_cast<std::size_t>(1000 + i % 7), static_cast<char>('a' + i % 26));
    };
    for (int i = 0; i < kLines; ++i) content += text(i) + (i % 2 == 0 ? "\n" : "\r\n");
    test::MemorySource source(content);
    ModelFile file(source);
    for (int i = 0; i < kLines; ++i) ASSERT_NO_FATAL_FAILURE(ExpectNext(file, text(i)));
}

TEST(LineExtent, OfLinesThatAreCutAndOfWhatIsLeftOfThem)
{
    test::MemorySource source(std::string(2 * kLongest + 3, 'x') + "\nafter\n" +
                              std::string(kLongest + 5, 'y'));
    ModelFile file(source);
    ExpectNext(file, std::string(kLongest, 'x'));
    ExpectNext(file, std::string(kLongest, 'x'));
    ExpectNext(file, "xxx");
    ExpectNext(file, "after");
    ExpectNext(file, std::string(kLongest, 'y'));
    ExpectNext(file, "yyyyy");
}

// After a NUL a line has no text, but it may go on.
TEST(LineExtent, GoesBeyondANul)
{
    test::MemorySource source(std::string("ab\0cd\nef\0", 9));
    ModelFile file(source);
    for (const int size : {5, 3}) {
        Line line;
        ASSERT_TRUE(file.ReadModelLine(line));
        EXPECT_EQ(line.end - line.text, size);
        EXPECT_TRUE(line.Holds(2));
        EXPECT_FALSE(line.Holds(3));
    }
}

}  // namespace
}  // namespace tamur
