// Functions that the linker puts in the place of others (--wrap=NAME): after
//
//     REAL_FUNCTION(Close)
//     extern "C" BOOL InPlaceOfClose(HANDLE file) { ... REAL(Close)(file) ... }
//     STAND_IN(Close)
//
// every call of Close in the program is one of InPlaceOfClose. On Windows a call of another
// library's function goes through a pointer with "__imp_" before its name: --wrap=__imp_NAME.
#pragma once

#ifdef _WIN32  // macros cannot be chosen by the linker, and their users are the same
#define REAL(name) __real___imp_##name
#define REAL_FUNCTION(name) extern "C" decltype(&name) REAL(name);
#define STAND_IN(name)                                                \
    extern "C" {                                                      \
    decltype(&InPlaceOf##name) __wrap___imp_##name = InPlaceOf##name; \
    }
#else
#define REAL(name) __real_##name
#define REAL_FUNCTION(name) extern "C" decltype(name) REAL(name);
#define STAND_IN(name) \
    extern "C" decltype(InPlaceOf##name) __wrap_##name __attribute__((alias("InPlaceOf" #name)));
#endif
