#include "import/scan/stream_scanner.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iomanip>
#include <limits>
#include <sstream>

#include "models/line_generator.h"
#include "support/effort.h"

namespace tamur {
namespace {

// A text as lines come from the file: padded after its end.
class Padded {
 public:
    explicit Padded(const std::string& text)
        : text_(text + std::string(kScanPadding, '\0')), length_(text.size())
    {
    }
    [[nodiscard]] StreamScanner Scanner() const
    {
        return StreamScanner(text_.c_str(), text_.c_str() + length_);
    }

 private:
    std::string text_;
    std::size_t length_;
};

bool SameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Reads the same token from both; true when both agree, also in failing.
template <class T>
bool Agrees(StreamScanner& scanner, std::istringstream& stream)
{
    T ours{}, theirs{};
    scanner >> ours;
    stream >> theirs;
    if (stream.fail()) return scanner.Failed() && ours == T{};
    if constexpr (std::is_same_v<T, double>) return !scanner.Failed() && SameBits(ours, theirs);
    return !scanner.Failed() && ours == theirs;
}

bool WordAgrees(StreamScanner& scanner, std::istringstream& stream)
{
    std::string_view ours;
    std::string theirs;
    scanner >> ours;
    stream >> theirs;
    return stream.fail() ? scanner.Failed() && ours.empty() : !scanner.Failed() && ours == theirs;
}

TEST(StreamScanner, ReadsWhatTheStandardStreamReads)
{
    test::LineGenerator generator(20260101);
    for (int i = 0; i < test::kStreamedLines; ++i) {
        const std::string line = generator.Line();
        const Padded padded(line);
        StreamScanner scanner = padded.Scanner();
        std::istringstream stream(line);
        std::string types;
        bool agrees = true;
        while (agrees && !stream.fail()) {
            const int type = generator.Below(16);
            types += std::to_string(type) + ' ';
            switch (type) {
                case 0:
                case 1: agrees = Agrees<std::uint32_t>(scanner, stream); break;
                case 2: agrees = Agrees<std::uint16_t>(scanner, stream); break;
                case 3: agrees = Agrees<char>(scanner, stream); break;
                case 4:
                case 5: agrees = WordAgrees(scanner, stream); break;
                case 6:
                case 7:
                case 8:
                case 9: agrees = Agrees<std::int32_t>(scanner, stream); break;
                default: agrees = Agrees<double>(scanner, stream); break;
            }
        }
        ASSERT_TRUE(agrees) << "line: '" << line << "' types: " << types;
    }
}

TEST(StreamScanner, ReadsRandomDoublesExactly)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 200000; ++i) {
        const std::uint64_t bits = random();
        double expected;
        std::memcpy(&expected, &bits, sizeof expected);
        if (expected != expected || expected - expected != 0.0) continue;
        std::ostringstream text;
        text << std::setprecision(17) << expected;
        const Padded padded(text.str());
        double value = 0;
        padded.Scanner() >> value;
        ASSERT_TRUE(SameBits(value, expected)) << text.str();
    }
}

TEST(StreamScanner, NumberEndsAtTheFirstCharacterThatCannotContinueIt)
{
    const Padded line("12abc 3.5 1e5x");
    StreamScanner tokens = line.Scanner();
    std::int32_t number = 0;
    std::string_view word;
    tokens >> number >> word;
    EXPECT_EQ(number, 12);
    EXPECT_EQ(word, "abc");
    double half = 0;
    tokens >> number >> half;
    EXPECT_EQ(number, 3);
    EXPECT_EQ(half, 0.5);
    double real = 0;
    char letter = '\0';
    tokens >> real >> letter;
    EXPECT_EQ(real, 1e5);
    EXPECT_EQ(letter, 'x');
    EXPECT_FALSE(tokens.Failed());
}

TEST(StreamScanner, FailureIsSticky)
{
    const Padded line("1 x 3");
    StreamScanner tokens = line.Scanner();
    std::int32_t a = -1, b = -2, c = -3;
    tokens >> a >> b >> c;
    EXPECT_TRUE(tokens.Failed());
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, -2);
    EXPECT_EQ(c, -3);
}

TEST(StreamScanner, NumberThatDoesNotFitKeepsTheStartValueAndEndsTheExtraction)
{
    const auto fails = [](const char* text, auto value) {
        const auto before = value;
        const Padded line(text);
        StreamScanner tokens = line.Scanner();
        tokens >> value;
        return tokens.Failed() && value == before;
    };
    EXPECT_TRUE(fails("2147483648", std::int32_t{5}));
    EXPECT_TRUE(fails("-2147483649", std::int32_t{5}));
    EXPECT_TRUE(fails("4294967296", std::uint32_t{5}));
    EXPECT_TRUE(fails("70000", std::uint16_t{5}));
    EXPECT_TRUE(fails("1e400", 5.0));
    EXPECT_TRUE(fails("1e+", 5.0));
}

TEST(StreamScanner, LargestNumbersFit)
{
    const Padded line("2147483647 -2147483648 4294967295 65535 -1");
    StreamScanner tokens = line.Scanner();
    std::int32_t largest = 0, smallest = 0;
    std::uint32_t largestUnsigned = 0, wrapped = 0;
    std::uint16_t largestShort = 0;
    tokens >> largest >> smallest >> largestUnsigned >> largestShort >> wrapped;
    EXPECT_FALSE(tokens.Failed());
    EXPECT_EQ(largest, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(smallest, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(largestUnsigned, 0xFFFFFFFFu);
    EXPECT_EQ(largestShort, 0xFFFFu);
    EXPECT_EQ(wrapped, 0xFFFFFFFFu);
}

TEST(StreamScanner, UnderflowIsRounded)
{
    const Padded line("1e-400 -1e-400 4e-324");
    StreamScanner tokens = line.Scanner();
    double zero = 1, negativeZero = 1, smallest = 0;
    tokens >> zero >> negativeZero >> smallest;
    EXPECT_FALSE(tokens.Failed());
    EXPECT_TRUE(SameBits(zero, 0.0));
    EXPECT_TRUE(SameBits(negativeZero, -0.0));
    EXPECT_EQ(smallest, std::numeric_limits<double>::denorm_min());
}

// Ends of tokens are looked for 64 characters at a time; longer tokens are read another way.
constexpr std::size_t kLengths[] = {1,   2,   61,  62,  63,  64,  65,  66,  126,  127,
                                    128, 129, 130, 254, 255, 256, 257, 258, 49990};

TEST(StreamScanner, WordsOfAnyLengthAreWhole)
{
    for (const std::size_t before : kLengths) {
        for (const std::size_t length : kLengths) {
            const std::string first(before, 'a');
            const std::string word(length, 'w');
            for (const char* blank : {" ", "  ", "\t"}) {
                const Padded line(first + blank + word + blank + "12");
                StreamScanner tokens = line.Scanner();
                std::string_view one, two;
                std::int32_t number = 0;
                tokens >> one >> two >> number;
                ASSERT_EQ(one, first) << before << " then " << length;
                ASSERT_EQ(two, word) << before << " then " << length;
                ASSERT_EQ(number, 12) << before << " then " << length;
                ASSERT_FALSE(tokens.Failed());
            }
        }
    }
}

TEST(StreamScanner, NumbersOfAnyLengthAreWhole)
{
    for (const std::size_t before : kLengths) {
        for (const std::size_t length : kLengths) {
            const Padded line(std::string(before, 'a') + " " + std::string(length - 1, '0') +
                              "7 0." + std::string(length - 1, '0') + "5 w");
            StreamScanner tokens = line.Scanner();
            std::string_view word;
            std::int32_t integer = 0;
            double real = -1;
            char last = 0;
            tokens >> word >> integer >> real >> last;
            ASSERT_EQ(integer, 7) << before << " then " << length;
            ASSERT_EQ(real, length < 400 ? std::stod("5e-" + std::to_string(length)) : 0.0)
                << before << " then " << length;
            ASSERT_EQ(last, 'w') << before << " then " << length;
        }
    }
}

TEST(StreamScanner, CharactersInFrontOfWordsOfAnyLengthAreTheirFirst)
{
    for (const std::size_t length : kLengths) {
        const Padded line("Ow" + std::string(length, 'w') + " 3");
        StreamScanner tokens = line.Scanner();
        char flag = 0;
        std::string_view rest;
        std::int32_t number = 0;
        tokens >> flag >> rest >> number;
        ASSERT_EQ(flag, 'O');
        ASSERT_EQ(rest.size(), length + 1);
        ASSERT_EQ(number, 3);
    }
}

TEST(StreamScanner, NumberOfThousandsOfDigitsIsRead)
{
    const Padded line("0." + std::string(40000, '1') + " " + std::string(40000, '0') + "7");
    StreamScanner tokens = line.Scanner();
    double real = 0;
    std::int32_t integer = 0;
    tokens >> real >> integer;
    EXPECT_EQ(real, 1.0 / 9.0);
    EXPECT_EQ(integer, 7);
}

}  // namespace
}  // namespace tamur
