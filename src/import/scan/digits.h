// Eight decimal digits at a time, in one 64-bit word.
#pragma once

#include <bit>
#include <cstdint>

#include "model/sanitizer.h"

namespace tamur {

static_assert(std::endian::native == std::endian::little);

inline std::uint64_t LoadWord(const char* text)
{
    sanitizer::ExpectAllowed(text);
    return sanitizer::LoadAhead<std::uint64_t>(text);
}

// How many of the eight characters are digits before the first that is none.
inline int LeadingDigits(std::uint64_t word)
{
    const std::uint64_t values = word ^ 0x3030303030303030;
    // The top bit of a byte is set for a value above 9. A carry spoils later bytes only.
    const std::uint64_t others = ((values + 0x7676767676767676) | values) & 0x8080808080808080;
    return std::countr_zero(others) / 8;
}

// The number that the first `count` characters, 1 to 8 digits, write.
inline std::uint32_t DigitsToInteger(std::uint64_t word, int count)
{
    std::uint64_t digits = (word ^ 0x3030303030303030) << (64 - 8 * count);
    digits = digits * 10 + (digits >> 8);  // pairs, in every other byte
    constexpr std::uint64_t kMask = 0x000000FF000000FF;
    constexpr std::uint64_t kHundredAndMillion = 100 + (std::uint64_t{1000000} << 32);
    constexpr std::uint64_t kOneAndTenThousand = 1 + (std::uint64_t{10000} << 32);
    return static_cast<std::uint32_t>(
        ((digits & kMask) * kHundredAndMillion + ((digits >> 16) & kMask) * kOneAndTenThousand) >>
        32);
}

}  // namespace tamur
