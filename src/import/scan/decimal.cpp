#include "import/scan/decimal.h"

#include <tmmintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "import/scan/digits.h"

namespace tamur {
namespace {

constexpr std::ptrdiff_t kMostDigits = 15;

constexpr double kPowersOfTen[kMostDigits + 1] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

double Scaled(std::uint64_t digits, std::ptrdiff_t fractionDigits, bool isNegative)
{
    const double magnitude =
        static_cast<double>(static_cast<std::int64_t>(digits)) / kPowersOfTen[fractionDigits];
    // Signs are hard to predict: no branch.
    const std::uint64_t sign = std::uint64_t{isNegative} << 63;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(magnitude) | sign);
}

// Appends [at, end) to the digits of `number`; false when they are not all digits.
bool AppendDigits(const char* at, const char* end, std::uint64_t& number)
{
    constexpr std::uint64_t kPowers[] = {1,      10,      100,      1000,     10000,
                                         100000, 1000000, 10000000, 100000000};
    while (at != end) {
        const std::uint64_t word = LoadWord(at);
        const int count = end - at < 8 ? static_cast<int>(end - at) : 8;
        if (LeadingDigits(word) < count) return false;
        number = number * kPowers[count] + DigitsToInteger(word, count);
        at += count;
    }
    return true;
}

}  // namespace

const bool kHasShuffle = __builtin_cpu_supports("ssse3") != 0;

bool PlainDecimal(const char* at, const char* end, double& value)
{
    const bool isNegative = *at == '-';
    at += isNegative;
    const int wholeDigits = LeadingDigits(LoadWord(at));
    if (wholeDigits == 0 || wholeDigits == 8) return false;
    std::uint64_t number = DigitsToInteger(LoadWord(at), wholeDigits);
    at += wholeDigits;
    std::ptrdiff_t fractionDigits = 0;
    if (at != end) {
        if (*at++ != '.') return false;
        fractionDigits = end - at;
        if (wholeDigits + fractionDigits > kMostDigits) return false;
        if (!AppendDigits(at, end, number)) return false;
    }
    value = Scaled(number, fractionDigits, isNegative);
    return true;
}

[[gnu::target("ssse3")]] bool PlainDecimalByShuffle(const char* at, const char* end, double& value)
{
    const bool isNegative = *at == '-';
    at += isNegative;
    const std::ptrdiff_t length = end - at;
    if (static_cast<std::size_t>(length - 1) > kMostDigits) return false;

    // Which of the characters are digits, and which is the point.
    sanitizer::ExpectAllowed(at);
    const __m128i text = sanitizer::LoadAhead<__m128i>(at);
    const __m128i digits = _mm_sub_epi8(text, _mm_set1_epi8('0'));
    const __m128i areDigits = _mm_cmpeq_epi8(_mm_min_epu8(digits, _mm_set1_epi8(9)), digits);
    const __m128i arePoints = _mm_cmpeq_epi8(text, _mm_set1_epi8('.'));
    const unsigned all = (1u << length) - 1;
    const unsigned points = static_cast<unsigned>(_mm_movemask_epi8(arePoints)) & all;
    const unsigned rest = static_cast<unsigned>(_mm_movemask_epi8(areDigits)) | points;
    if ((rest & all) != all || (points & (points - 1)) != 0 || (points & 1) != 0) return false;
    const int hasPoint = points != 0;
    const int point = hasPoint ? std::countr_zero(points) : static_cast<int>(length);
    const int count = static_cast<int>(length) - hasPoint;
    if (count > kMostDigits) return false;

    // The digits moved to the end, over the point; zeros come in at the front.
    const __m128i places =
        _mm_add_epi8(_mm_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15),
                     _mm_set1_epi8(static_cast<char>(count - 16)));
    const __m128i behindPoint = _mm_cmpgt_epi8(places, _mm_set1_epi8(static_cast<char>(point - 1)));
    const __m128i sixteen = _mm_shuffle_epi8(digits, _mm_sub_epi8(places, behindPoint));

    // Neighbours joined: pairs, fours, eights.
    const __m128i pairs = _mm_maddubs_epi16(sixteen, _mm_set1_epi16(0x010A));
    const __m128i fours = _mm_madd_epi16(pairs, _mm_set1_epi32(0x00010064));
    const __m128i packed = _mm_packs_epi32(fours, fours);
    const __m128i eights = _mm_madd_epi16(packed, _mm_set1_epi32(0x00012710));
    const std::uint64_t both = static_cast<std::uint64_t>(_mm_cvtsi128_si64(eights));
    const std::uint64_t number = (both & 0xFFFFFFFF) * 100000000 + (both >> 32);
    value = Scaled(number, count - point, isNegative);
    return true;
}

}  // namespace tamur
