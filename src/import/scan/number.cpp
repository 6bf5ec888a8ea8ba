#include "import/scan/number.h"

#include <charconv>
#include <limits>

#include "import/scan/characters.h"

namespace tamur {
namespace {

// Far beyond the range of a double, far below overflow.
constexpr std::int64_t kLargestExponent = 1000000000;

std::int64_t ExponentOf(const char* marker, const char* end)
{
    if (marker == end) return 0;
    const IntegerText text = ReadIntegerText(marker + 1);
    const std::int64_t exponent = text.magnitude > kLargestExponent
                                      ? kLargestExponent
                                      : static_cast<std::int64_t>(text.magnitude);
    return text.isNegative ? -exponent : exponent;
}

// Tells which way a number left the range of doubles: by the place of its first digit other
// than 0 relative to the point, corrected by the exponent.
bool IsLarge(const char* begin, const char* end, char marker, int digitsPerExponent)
{
    std::int64_t place = 0;
    bool significant = false;
    bool fraction = false;
    const char* at = begin;
    for (; at != end && (*at | 0x20) != marker; ++at) {
        if (*at == '.') {
            fraction = true;
        } else {
            significant = significant || *at != '0';
            if (significant && !fraction) ++place;
            if (!significant && fraction) --place;
        }
    }
    return place * digitsPerExponent + ExponentOf(at, end) > 0;
}

Magnitude ToReal(const char* begin, const char* end, std::chars_format format, double& value)
{
    const auto result = std::from_chars(begin, end, value, format);
    if (result.ec != std::errc::result_out_of_range) return Magnitude::kNormal;
    const bool isHexadecimal = format == std::chars_format::hex;
    if (IsLarge(begin, end, isHexadecimal ? 'p' : 'e', isHexadecimal ? 4 : 1)) {
        value = std::numeric_limits<double>::infinity();
        return Magnitude::kOverflow;
    }
    value = 0.0;
    return Magnitude::kUnderflow;
}

}  // namespace

IntegerText ReadIntegerText(const char* at)
{
    IntegerText text;
    text.isNegative = *at == '-';
    if (*at == '-' || *at == '+') ++at;
    if (!IsDigit(*at)) return text;
    constexpr std::uint64_t kLargest = std::numeric_limits<std::uint64_t>::max();
    for (; IsDigit(*at); ++at) {
        const std::uint64_t digit = static_cast<std::uint64_t>(*at - '0');
        text.magnitude =
            text.magnitude > (kLargest - digit) / 10 ? kLargest : text.magnitude * 10 + digit;
    }
    text.end = at;
    return text;
}

Magnitude DecimalToReal(const char* begin, const char* end, double& value)
{
    const bool isNegative = *begin == '-';
    if (*begin == '-' || *begin == '+') ++begin;
    const Magnitude magnitude = ToReal(begin, end, std::chars_format::general, value);
    if (isNegative) value = -value;
    return magnitude;
}

Magnitude HexadecimalToReal(const char* begin, const char* end, double& value)
{
    return ToReal(begin, end, std::chars_format::hex, value);
}

}  // namespace tamur
