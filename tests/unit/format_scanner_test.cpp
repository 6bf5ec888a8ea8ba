#include "import/scan/format_scanner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tamur {
namespace {

TEST(FormatScanner, StopsAtTheFirstConversionThatFails)
{
    double a = -1, b = -1;
    std::int32_t c = -1;
    FormatScanner scan("1.5 abc 3");
    scan >> a >> b >> c;
    EXPECT_TRUE(scan.Failed());
    EXPECT_EQ(a, 1.5);
    EXPECT_EQ(b, -1);
    EXPECT_EQ(c, -1);
}

TEST(FormatScanner, IntegersBeyond32BitsAreClamped)
{
    std::int32_t large = 0, small = 0, huge = 0;
    FormatScanner("2147483648 -2147483649 99999999999999999999999") >> large >> small >> huge;
    EXPECT_EQ(large, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(small, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(huge, std::numeric_limits<std::int32_t>::max());
}

TEST(FormatScanner, RealsTakeWhatCTakes)
{
    double infinite = 0, hexadecimal = 0, large = 0, small = 1;
    FormatScanner("-INF 0x1.8p1 1e400 1e-400") >> infinite >> hexadecimal >> large >> small;
    EXPECT_EQ(infinite, -std::numeric_limits<double>::infinity());
    EXPECT_EQ(hexadecimal, 3.0);
    EXPECT_EQ(large, std::numeric_limits<double>::infinity());
    EXPECT_EQ(small, 0.0);
    double notANumber = 0;
    FormatScanner("nan") >> notANumber;
    EXPECT_TRUE(std::isnan(notANumber));
}

TEST(FormatScanner, WordThatIsNoNumberIsZero)
{
    EXPECT_EQ(WordToReal("abc"), 0.0);
    EXPECT_EQ(WordToReal(""), 0.0);
    EXPECT_EQ(WordToReal("2.5x"), 2.5);
    EXPECT_EQ(WordToReal("infi"), std::numeric_limits<double>::infinity());
}

}  // namespace
}  // namespace tamur
