// The parts of a written number that both scanners read.
#pragma once

#include <cstdint>

namespace tamur {

// An optional sign and decimal digits.
struct IntegerText {
    const char* end = nullptr;  // after the last digit; null when there is no digit
    bool isNegative = false;
    std::uint64_t magnitude = 0;  // stays at its largest value once it would overflow
};

[[nodiscard]] IntegerText ReadIntegerText(const char* at);

// What converting a decimal number came to.
enum class Magnitude { kNormal, kOverflow, kUnderflow };

// Converts [begin, end): an optional sign, digits with at most one point, an optional complete
// exponent. Rounds to nearest; gives an infinity for an overflow and a zero for an underflow.
Magnitude DecimalToReal(const char* begin, const char* end, double& value);

// Converts hexadecimal digits with at most one point and an optional complete binary exponent.
Magnitude HexadecimalToReal(const char* begin, const char* end, double& value);

}  // namespace tamur
