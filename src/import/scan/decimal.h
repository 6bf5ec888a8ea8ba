// Plain decimal numbers, the bulk of every model file.
#pragma once

namespace tamur {

// Converts [at, end) when it is a decimal number of at most 15 digits, at least one of them before
// the point, with an optional minus and without an exponent. False when it is anything else. The
// digits are an exact integer and the power of ten is exact, so their quotient is the nearest
// double. Reads up to 16 bytes from `at`, whatever `end` is, and one more after a minus.
//
// The second needs a processor with 16-byte shuffles (SSSE3). What both convert they convert to the
// same value; the first declines more than 7 digits before the point.
bool PlainDecimal(const char* at, const char* end, double& value);
bool PlainDecimalByShuffle(const char* at, const char* end, double& value);

// Whether this processor has 16-byte shuffles.
extern const bool kHasShuffle;

}  // namespace tamur
