// Searching for a byte, sixteen at a time: every x86-64 processor has the instructions, and the
// run time of one of the platforms searches byte by byte.
#pragma once

#include <emmintrin.h>

#include <bit>

namespace tamur {

// The first `wanted` in [begin, end), or `end`. Reads up to 15 bytes past `end`.
inline const char* FindByte(const char* begin, const char* end, char wanted)
{
    const __m128i pattern = _mm_set1_epi8(wanted);
    for (const char* at = begin; at < end; at += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const unsigned hits =
            static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, pattern)));
        if (hits != 0) {
            const char* const hit = at + std::countr_zero(hits);
            return hit < end ? hit : end;
        }
    }
    return end;
}

}  // namespace tamur
