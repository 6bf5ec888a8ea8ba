#include "import/file/model_file.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "support/memory_source.h"

namespace tamur {
namespace {

constexpr std::size_t kLongestLine = 49999;

// The whole file as text mode gives it.
std::string AsText(const std::string& bytes)
{
    std::string text;
    for (std::size_t i = 0; i < bytes.size() && bytes[i] != '\x1A'; ++i) {
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
        text += bytes[i];
    }
    return text;
}

// The lines as reading them one by one with a buffer of 50000 bytes gives them.
std::vector<std::string> PlainLines(const std::string& bytes)
{
    const std::string text = AsText(bytes);
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t feed = text.find('\n', at);
        const std::size_t rest = (feed == text.npos ? text.size() : feed + 1) - at;
        const std::size_t size = std::min(rest, kLongestLine);
        std::string line = text.substr(at, size);
        at += size;
        line = line.substr(0, line.find('\0'));
        if (line.ends_with('\n')) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> LinesAfter(ModelFile& file)
{
    std::vector<std::string> lines;
    for (Line line; file.ReadModelLine(line);) lines.emplace_back(line.text);
    return lines;
}

// Every header is found where the plain reading finds it, with the same lines after it.
void ExpectPlainReading(const std::string& bytes, std::size_t piece)
{
    test::MemorySource source(bytes, piece);
    ModelFile file(source);
    const std::vector<std::string> lines = PlainLines(bytes);
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const auto header = static_cast<SectionHeader>(i);
        const auto found = std::find(lines.begin(), lines.end(), TextOf(header));
        ASSERT_EQ(file.FindSectionHeader(header), found != lines.end()) << TextOf(header);
        const auto after = found == lines.end() ? found : found + 1;
        ASSERT_EQ(LinesAfter(file), std::vector<std::string>(after, lines.end()));
    }
}

std::string RandomFile(std::mt19937& random)
{
    static const std::vector<std::string> kPieces = {
        "\n",      "\r\n",       "\r",         "\r\r\n",    "#",          "#Elements",
        "#Cas",    "#SP",        "#Version\n", "#SP\r\n",   "1 2 3\n",    "x",
        "#Cas \n", "#Cas\r\r\n", "#Espace\n",  "#Rigide\n", "#Materiaux", "#Mat\x82riaux\n"};
    std::string bytes;
    for (auto count = random() % 40; count > 0; --count) {
        switch (random() % 24) {
            case 0: bytes += std::string(1, '\0'); break;
            case 1: bytes += std::string(kLongestLine - 3 + random() % 6, 'a'); break;
            case 2: bytes += std::string(random() % 120000, 'b'); break;
            case 3: bytes += random() % 8 == 0 ? "\x1A" : "z"; break;
            default: bytes += kPieces[random() % kPieces.size()]; break;
        }
    }
    return bytes;
}

TEST(ModelFile, ReadsWhatAPlainTextStreamReads)
{
    std::mt19937 random(42);
    for (int i = 0; i < 1500; ++i) {
        ASSERT_NO_FATAL_FAILURE(ExpectPlainReading(RandomFile(random), 1 + random() % 200000));
    }
}

TEST(ModelFile, SourceMayGiveOneByteAtATime)
{
    ExpectPlainReading("#SP\r\n3\r\n\r\n#Elements\r\n1\n2", 1);
}

TEST(ModelFile, LinesAreCutAtEveryLengthAroundTheLimit)
{
    for (std::size_t length = kLongestLine - 3; length <= kLongestLine + 3; ++length) {
        for (const char* end : {"\n", "\r\n", "\r", ""}) {
            const std::string line(length, 'x');
            ExpectPlainReading("#SP\n" + line + end + "#Cas\n1", ~std::size_t{0});
            ExpectPlainReading("#SP\n" + line + end, 4096);
        }
    }
}

TEST(ModelFile, ReadErrorIsTheEndOfTheFile)
{
    const std::string bytes = "#SP\n12345\n#Cas\n";
    test::MemorySource source(bytes, 3, 7);
    ModelFile file(source);
    EXPECT_FALSE(file.FindSectionHeader(SectionHeader::kCases));
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kServicePack));
    EXPECT_EQ(LinesAfter(file), std::vector<std::string>{"123"});
}

TEST(ModelFile, FileThatShrinksEndsWhereItEndsNow)
{
    test::MemorySource source("#SP\n1\n2\n3\n");
    ModelFile file(source);
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kServicePack));
    source.Replace("#SP\n1\n");
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kServicePack));
    EXPECT_EQ(LinesAfter(file), std::vector<std::string>{"1"});
    source.Replace("");
    EXPECT_FALSE(file.FindSectionHeader(SectionHeader::kServicePack));
}

TEST(ModelFile, FileThatGrowsEndsWhereItEndedFirst)
{
    test::MemorySource source("#SP\n1\n");
    ModelFile file(source);
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kServicePack));
    source.Replace("#SP\n1\n2\n3\n#Cas\n");
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kServicePack));
    EXPECT_EQ(LinesAfter(file), std::vector<std::string>{"1"});
}

TEST(ModelFile, DataLinesEndAtTheNextHeader)
{
    test::MemorySource source("#Cas\n\na\n\r\nb\n#x\nc\n");
    ModelFile file(source);
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kCases));
    std::vector<std::string> lines;
    for (Line line; file.ReadDataLine(line);) lines.emplace_back(line.text);
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "b"}));
}

TEST(ModelFile, AnObserverHearsOfTheTextAndThenOfTheLinesThatAreRead)
{
    struct Notes final : ImportObserver {
        std::string text;
        void OnText(std::string_view lines) override { text += lines; }
        void OnSection(SectionHeader header, std::uint64_t offset) override
        {
            text += "[" + std::to_string(offset) + std::string(TextOf(header)) + "]";
        }
        void OnLine(std::string_view line, bool isCut) override
        {
            text += isCut ? "<cut>" : "<" + std::string(line) + ">";
        }
        void OnFinding(Finding) override { text += "!"; }
        void OnRefusal(Refusal) override {}
    } notes;
    const std::string tooLong(60000, 'x');
    test::MemorySource source("0\n#Cas\r\nab\r\n\n" + tooLong + "\ncd\x1A\n#Elements\n", 11);
    ModelFile file(source, &notes);
    ASSERT_TRUE(file.FindSectionHeader(SectionHeader::kCases));
    for (Line line; file.ReadDataLine(line);) file.Report(Finding::kUnknownKind);
    EXPECT_EQ(notes.text, "0\n#Cas\r\nab\r\n\n" + tooLong +
                              "\ncd"
                              "[2#Cas]<ab>!<><cut>!<" +
                              tooLong.substr(kLongestLine) + ">!<cd>!");
}

TEST(Line, HoldsCountsUpToItsLength)
{
    const std::string text("abc\0def", 7);
    const Line line{text.data(), text.data() + text.size()};
    EXPECT_TRUE(line.Holds(-1));
    EXPECT_TRUE(line.Holds(0));
    EXPECT_TRUE(line.Holds(3));
    EXPECT_FALSE(line.Holds(4));  // the text ends at the NUL
    EXPECT_FALSE(line.Holds(2147483647));
}

}  // namespace
}  // namespace tamur
