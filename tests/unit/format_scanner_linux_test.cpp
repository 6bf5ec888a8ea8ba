// Against the C library. That of Windows knows neither hexadecimal nor infinities.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "import/scan/format_scanner.h"
#include "models/line_generator.h"

namespace tamur {
namespace {

bool SameReal(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

struct Columns {
    int integers[3] = {-7, -7, -7};
    double reals[3] = {-7, -7, -7};
    std::string words[3] = {"?", "?", "?"};
    char characters[3] = {'?', '?', '?'};

    bool operator==(const Columns& other) const
    {
        for (int i = 0; i < 3; ++i) {
            if (integers[i] != other.integers[i] || !SameReal(reals[i], other.reals[i]) ||
                words[i] != other.words[i] || characters[i] != other.characters[i]) {
                return false;
            }
        }
        return true;
    }
};

// One of a few orders of columns, read by the scanner and by the C library.
Columns Scan(int order, const std::string& line)
{
    Columns c;
    FormatScanner scan(line.c_str());
    std::string_view words[3] = {"?", "?", "?"};
    switch (order) {
        case 0: scan >> words[0] >> c.reals[0] >> c.reals[1] >> c.reals[2]; break;
        case 1: scan >> c.integers[0] >> c.integers[1] >> words[0] >> words[1]; break;
        case 2: scan >> c.reals[0] >> c.characters[0] >> c.reals[1] >> c.characters[1]; break;
        case 3: scan >> c.reals[0] >> words[0] >> c.reals[1] >> words[1]; break;
        default: scan >> words[0] >> c.integers[0] >> c.reals[0] >> c.characters[0]; break;
    }
    for (int i = 0; i < 3; ++i) c.words[i] = words[i];
    return c;
}

Columns ScanWithLibrary(int order, const std::string& line)
{
    Columns c;
    char words[3][256] = {"?", "?", "?"};
    const char* const text = line.c_str();
    switch (order) {
        case 0:
            (void)std::sscanf(text, "%255s%lf%lf%lf", words[0], &c.reals[0], &c.reals[1],
                              &c.reals[2]);
            break;
        case 1:
            (void)std::sscanf(text, "%d%d%255s%255s", &c.integers[0], &c.integers[1], words[0],
                              words[1]);
            break;
        case 2:
            (void)std::sscanf(text, "%lf%c%lf%c", &c.reals[0], &c.characters[0], &c.reals[1],
                              &c.characters[1]);
            break;
        case 3:
            (void)std::sscanf(text, "%lf%255s%lf%255s", &c.reals[0], words[0], &c.reals[1],
                              words[1]);
            break;
        default:
            (void)std::sscanf(text, "%255s%d%lf%c", words[0], &c.integers[0], &c.reals[0],
                              &c.characters[0]);
            break;
    }
    for (int i = 0; i < 3; ++i) c.words[i] = words[i];
    return c;
}

// Integers beyond 32 bits are where C libraries differ among themselves.
bool MayHoldHugeInteger(const std::string& line)
{
    constexpr int kDigitsThatFit = 9;
    int run = 0;
    for (const char c : line) {
        run = c >= '0' && c <= '9' ? run + 1 : 0;
        if (run > kDigitsThatFit) return true;
    }
    return false;
}

TEST(FormatScanner, ReadsWhatTheCLibraryReads)
{
    test::LineGenerator generator(1976);
    for (int i = 0; i < 2000000; ++i) {
        const std::string line = generator.Line();
        const int order = generator.Below(5);
        const bool hasIntegers = order == 1 || order == 4;
        if (hasIntegers && MayHoldHugeInteger(line)) continue;
        ASSERT_TRUE(Scan(order, line) == ScanWithLibrary(order, line))
            << "order " << order << " line: '" << line << "'";
    }
}

TEST(FormatScanner, WordsConvertAsTheCLibraryConverts)
{
    test::LineGenerator generator(1789);
    for (int i = 0; i < 500000; ++i) {
        std::string word = generator.Line();
        word = word.substr(0, word.find_first_of(" \t\r\v\f"));
        ASSERT_TRUE(SameReal(WordToReal(word), std::strtod(word.c_str(), nullptr))) << word;
    }
}

}  // namespace
}  // namespace tamur
