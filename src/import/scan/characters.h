// Character classes of the model file: those of the "C" locale, whatever the host's locale is.
#pragma once

namespace tamur {

// How far past its NUL a scanned text is readable.
inline constexpr int kScanPadding = 96;

constexpr bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr const char* SkipBlanks(const char* at)
{
    while (IsBlank(*at)) ++at;
    return at;
}

// The end of the word that starts at `at`; `at` itself when there is none.
constexpr const char* EndOfWord(const char* at)
{
    while (*at != '\0' && !IsBlank(*at)) ++at;
    return at;
}

}  // namespace tamur
