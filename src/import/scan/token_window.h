// Where the tokens of a line end, for 64 characters at a time.
#pragma once

#include <emmintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "model/sanitizer.h"

namespace tamur {

// Finds the ends of tokens ahead of the reading: then where a token starts does not depend on how
// the one before it was converted, and the processor converts several at once.
//
// This is for plain lines: tokens with one blank between them. Where the line holds other white
// space no end is found, and the caller reads by the exact rules.
class TokenWindow {
 public:
    // How far after the place given to MoveTo bytes are read.
    static constexpr int kSize = 64;

    // Looks at the characters from `at` on; the line ends at `lineEnd`.
    void MoveTo(const char* at, const char* lineEnd)
    {
        sanitizer::ExpectAllowed(at);
        std::uint64_t blanks = 0;
        std::uint64_t others = 0;
        for (int i = 0; i < kSize; i += 16) {
            const __m128i bytes = sanitizer::LoadAhead<__m128i>(at + i);
            blanks |= Mask(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(' '))) << i;
            others |= Mask(IsOtherSpace(bytes)) << i;
        }
        start_ = at;
        if (lineEnd - at < kSize) {
            const std::uint64_t end = std::uint64_t{1} << (lineEnd - at);
            blanks = (blanks & (end - 1)) | end;
            others &= end - 1;
        }
        ends_ = others == 0 ? blanks : 0;
    }

    void Clear() { ends_ = 0; }

    [[nodiscard]] bool IsUsedUp() const { return ends_ == 0; }

    // The end of the next token; kSize characters from the start when none is known.
    [[nodiscard]] const char* NextEnd() const { return start_ + std::countr_zero(ends_); }

    void PassEnd() { ends_ &= ends_ - 1; }

 private:
    static std::uint64_t Mask(__m128i bytes)
    {
        return static_cast<unsigned>(_mm_movemask_epi8(bytes));
    }

    // NUL, and white space other than the blank: '\t' to '\r'.
    static __m128i IsOtherSpace(__m128i bytes)
    {
        const __m128i fromTab = _mm_sub_epi8(bytes, _mm_set1_epi8('\t'));
        const __m128i isSpace =
            _mm_cmpeq_epi8(_mm_min_epu8(fromTab, _mm_set1_epi8('\r' - '\t')), fromTab);
        return _mm_or_si128(isSpace, _mm_cmpeq_epi8(bytes, _mm_setzero_si128()));
    }

    const char* start_ = nullptr;
    std::uint64_t ends_ = 0;  // a bit for each character where a token ends
};

}  // namespace tamur
