#include "import/scan/number.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tamur {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Written {
    std::string text;
    Magnitude magnitude;
    double value;
};

// What comes after the number plays no part, however much like an exponent it looks.
void ExpectDecimal(const Written& number)
{
    for (const char* const after : {"", " 900", " -900", "e900", "e-900"}) {
        const std::string text = number.text + after;
        double value = -1;
        EXPECT_EQ(DecimalToReal(text.data(), text.data() + number.text.size(), value),
                  number.magnitude)
            << text;
        EXPECT_EQ(value, number.value) << text;
    }
}

const std::string kZeros(500, '0');

// Digits after the point, and zeros before the first other digit, do not make a number smaller.
TEST(DecimalRange, OverflowIsToldWhateverIsAfterThePoint)
{
    ExpectDecimal({"1." + kZeros + "e400", Magnitude::kOverflow, kInfinity});
    ExpectDecimal({"9." + std::string(500, '9') + "e400", Magnitude::kOverflow, kInfinity});
    ExpectDecimal({kZeros + "1e400", Magnitude::kOverflow, kInfinity});
    ExpectDecimal({"1" + kZeros, Magnitude::kOverflow, kInfinity});
    ExpectDecimal({"-1" + kZeros + "." + kZeros, Magnitude::kOverflow, -kInfinity});
}

TEST(DecimalRange, ZerosAfterThePointCountAgainstTheExponent)
{
    ExpectDecimal({"0." + kZeros + "1", Magnitude::kUnderflow, 0.0});
    ExpectDecimal({"0." + kZeros + "1e100", Magnitude::kUnderflow, 0.0});
    ExpectDecimal({"0." + kZeros + "1e900", Magnitude::kOverflow, kInfinity});
    ExpectDecimal({"0." + kZeros + "1e500", Magnitude::kNormal, 0.1});
}

TEST(DecimalRange, DigitsBeforeThePointCountAgainstANegativeExponent)
{
    ExpectDecimal({"1" + kZeros + "e-900", Magnitude::kUnderflow, 0.0});
    ExpectDecimal({"1" + kZeros + "e-500", Magnitude::kNormal, 1.0});
}

TEST(DecimalRange, ExponentsBeyondAnyIntegerKeepTheirSign)
{
    ExpectDecimal({"1e99999999999999999999999999", Magnitude::kOverflow, kInfinity});
    ExpectDecimal({"1e-99999999999999999999999999", Magnitude::kUnderflow, 0.0});
}

}  // namespace
}  // namespace tamur
