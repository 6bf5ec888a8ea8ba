// What the address sanitizer cannot know: which part of memory that was allocated in a large piece
// is in use. Told so, it finds a step past a record, an array or a line as it finds one past a
// block. Without it nothing of this is left in the code.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SANITIZE_ADDRESS__)
#define TAMUR_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TAMUR_ADDRESS_SANITIZER
#endif
#endif

#ifdef TAMUR_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
// A function whose reads are not looked at.
#define TAMUR_READS_UNCHECKED __attribute__((no_sanitize("address"), noinline))
#else
#define TAMUR_READS_UNCHECKED
#endif

namespace tamur::sanitizer {

#ifdef TAMUR_ADDRESS_SANITIZER

inline constexpr bool kIsOn = true;

// Between two pieces of one block.
inline constexpr std::size_t kGap = 16;

// Touching any of it is a finding, until it is allowed. Precise to the byte where it begins, if all
// up to the next multiple of eight is forbidden too.
inline void Forbid(const void* at, std::size_t size)
{
    ASAN_POISON_MEMORY_REGION(at, size);
}

// Whether a byte was forbidden, or always allowed: not one that the run time keeps others from.
TAMUR_READS_UNCHECKED inline bool IsOurs(const char* at)
{
    std::size_t scale = 0, offset = 0;
    __asan_get_shadow_mapping(&scale, &offset);
    const auto state = *reinterpret_cast<const unsigned char*>(
        (reinterpret_cast<std::uintptr_t>(at) >> scale) + offset);
    constexpr unsigned char kForbidden = 0xF7;
    // Below 8 it is how many bytes of the eight may be touched, and 0 if all of them.
    return state == kForbidden || state == 0 ||
           (state < 8 && reinterpret_cast<std::uintptr_t>(at) % 8 < state);
}

// It may be touched again; precise to the byte where it ends. Only what was forbidden is allowed:
// asked for more than its block holds, nothing.
inline void Allow(const void* at, std::size_t size)
{
    if (size == 0 || !IsOurs(static_cast<const char*>(at) + size - 1)) return;
    ASAN_UNPOISON_MEMORY_REGION(at, size);
}

// Allows memory and fills it with what nobody takes for zeros.
inline void AllowSpoilt(void* at, std::size_t size)
{
    Allow(at, size);
    std::memset(at, 0xA5, size);
}

inline void ExpectAllowed(const char* at)
{
    (void)*static_cast<const volatile char*>(at);
}

#else

inline constexpr bool kIsOn = false;
inline constexpr std::size_t kGap = 0;
constexpr void Forbid(const void*, std::size_t) {}
constexpr void Allow(const void*, std::size_t) {}
constexpr void AllowSpoilt(void*, std::size_t) {}
constexpr void ExpectAllowed(const char*) {}

#endif

// The value at `at`, all of which may be forbidden. Only for reading ahead on purpose, where what
// was read too much is thrown away: whoever does that looks at ExpectAllowed first.
template <class Value>
TAMUR_READS_UNCHECKED inline Value LoadAhead(const char* at)
{
    Value value;
    __builtin_memcpy(&value, at, sizeof value);
    return value;
}

}  // namespace tamur::sanitizer
