#include "import/scan/decimal.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cstring>
#include <string>

#include "import/scan/characters.h"
#include "models/line_generator.h"

namespace tamur {
namespace {

using Convert = bool (*)(const char*, const char*, double&);

// The exact value of a token, and nothing when it is no number as a whole.
bool Exact(const std::string& token, double& value)
{
    const char* const end = token.data() + token.size();
    const auto result = std::from_chars(token.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

// Whatever it converts is converted to the nearest double.
void ExpectExactOrDeclined(Convert convert, const std::string& token)
{
    const std::string padded = token + ' ' + std::string(kScanPadding, '7');
    double value = -1, exact = -2;
    if (!convert(padded.data(), padded.data() + token.size(), value)) return;
    ASSERT_TRUE(Exact(token, exact)) << token;
    ASSERT_EQ(std::memcmp(&value, &exact, sizeof value), 0) << token;
}

void ExpectConverts(Convert convert, const std::string& token, double expected)
{
    const std::string padded = token + ' ' + std::string(kScanPadding, '7');
    double value = -1;
    ASSERT_TRUE(convert(padded.data(), padded.data() + token.size(), value)) << token;
    ASSERT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << token;
}

class PlainDecimals : public testing::TestWithParam<Convert> {
 protected:
    void SetUp() override
    {
        if (GetParam() == PlainDecimalByShuffle && !kHasShuffle) GTEST_SKIP();
    }
};

TEST_P(PlainDecimals, AreExactOrDeclined)
{
    test::LineGenerator generator(3);
    for (int i = 0; i < 300000; ++i) {
        const std::string line = generator.Line();
        for (std::size_t begin = 0; begin < line.size();) {
            const std::size_t end = std::min(line.find_first_of(" \t\r\v\f", begin), line.size());
            ASSERT_NO_FATAL_FAILURE(
                ExpectExactOrDeclined(GetParam(), line.substr(begin, end - begin)));
            begin = end + 1;
        }
    }
}

TEST_P(PlainDecimals, OfEveryLengthAreConverted)
{
    const std::string digits = "123456789012345";
    for (std::size_t whole = 1; whole <= 7; ++whole) {
        for (std::size_t length = whole; length <= digits.size(); ++length) {
            std::string token = digits.substr(0, whole);
            if (length > whole) token += "." + digits.substr(whole, length - whole);
            double exact = 0;
            ASSERT_TRUE(Exact(token, exact));
            ExpectConverts(GetParam(), token, exact);
            ExpectConverts(GetParam(), "-" + token, -exact);
        }
    }
}

TEST_P(PlainDecimals, PointMayStandLast)
{
    ExpectConverts(GetParam(), "12.", 12.0);
}

TEST_P(PlainDecimals, MinusZeroKeepsItsSign)
{
    ExpectConverts(GetParam(), "-0.00", -0.0);
}

TEST_P(PlainDecimals, OtherTokensAreDeclined)
{
    for (const char* token : {"", "-", ".", ".5", "+1", "1e5", "1.5e3", "1..2", "1.2.3", "12a",
                              "1-2", "--1", "0x1", "inf", "1234567.123456789", "1/2", "1:2"}) {
        const std::string padded = std::string(token) + ' ' + std::string(kScanPadding, '7');
        double value = -1;
        EXPECT_FALSE(GetParam()(padded.data(), padded.data() + std::strlen(token), value)) << token;
        EXPECT_EQ(value, -1);
    }
}

INSTANTIATE_TEST_SUITE_P(Both, PlainDecimals, testing::Values(PlainDecimal, PlainDecimalByShuffle),
                         [](const auto& parameter) {
                             return parameter.index == 0 ? "Plain" : "Shuffle";
                         });

}  // namespace
}  // namespace tamur
