#include "import/scan/format_scanner.h"

#include <limits>
#include <string>

#include "import/scan/characters.h"
#include "import/scan/number.h"

namespace tamur {
namespace {

bool IsHexDigit(char c)
{
    return IsDigit(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
}

// Whether `text` starts with `lower`, in any case.
bool StartsWith(const char* text, const char* lower)
{
    for (; *lower != '\0'; ++text, ++lower) {
        if ((*text | 0x20) != *lower) return false;
    }
    return true;
}

// The end of digits with at most one point; null when there is no digit.
template <class IsDigitOfBase>
const char* EndOfMantissa(const char* at, IsDigitOfBase isDigit)
{
    bool digits = false;
    for (bool point = false; isDigit(*at) || (*at == '.' && !point); ++at) {
        digits = digits || isDigit(*at);
        point = point || *at == '.';
    }
    return digits ? at : nullptr;
}

const char* EndOfExponent(const char* at, char marker)
{
    if ((*at | 0x20) != marker) return at;
    const char* const end = ReadIntegerText(at + 1).end;
    return end != nullptr ? end : at;
}

struct Real {
    double value = 0;
    const char* end = nullptr;     // after the longest prefix that is a number; null when none is
    char exponentMarker = '\0';    // that may still follow: 'e', 'p' or none
    bool isShortInfinity = false;  // written as "inf", which "infinity" may continue
    bool isBrokenHexadecimal = false;  // "0x" without digits, of which only the 0 counts
};

Real ReadMagnitude(const char* at)
{
    Real real;
    if (StartsWith(at, "inf")) {
        real.value = std::numeric_limits<double>::infinity();
        real.isShortInfinity = !StartsWith(at, "infinity");
        real.end = at + (real.isShortInfinity ? 3 : 8);
        return real;
    }
    if (StartsWith(at, "nan")) {
        real.value = std::numeric_limits<double>::quiet_NaN();
        real.end = at + 3;
        return real;
    }
    const bool isHexadecimal = *at == '0' && (at[1] | 0x20) == 'x';
    const char* const hex = isHexadecimal ? EndOfMantissa(at + 2, IsHexDigit) : nullptr;
    if (hex != nullptr) {
        real.end = EndOfExponent(hex, 'p');
        real.exponentMarker = real.end == hex ? 'p' : '\0';
        HexadecimalToReal(at + 2, real.end, real.value);
    } else if (const char* decimal = EndOfMantissa(at, IsDigit); decimal != nullptr) {
        real.end = EndOfExponent(decimal, 'e');
        real.exponentMarker = real.end == decimal ? 'e' : '\0';
        real.isBrokenHexadecimal = isHexadecimal;
        DecimalToReal(at, real.end, real.value);
    }
    return real;
}

Real ReadReal(const char* at)
{
    const bool isNegative = *at == '-';
    if (*at == '-' || *at == '+') ++at;
    Real real = ReadMagnitude(at);
    if (isNegative && real.end != nullptr) real.value = -real.value;
    return real;
}

// Where scanning goes on after a real. It takes characters one by one and cannot give them
// back: an exponent without digits is gone, and a broken "0x" or "infinity" fails the
// conversion. Null when it fails.
const char* EndOfScan(const Real& real)
{
    const char* const end = real.end;
    if (end == nullptr) return nullptr;
    if (real.isShortInfinity && (*end | 0x20) == 'i') return nullptr;
    if (real.isBrokenHexadecimal) return end[1] == '.' ? end + 2 : nullptr;
    if (real.exponentMarker != '\0' && (*end | 0x20) == real.exponentMarker) {
        return end[1] == '-' || end[1] == '+' ? end + 2 : end + 1;
    }
    return end;
}

}  // namespace

FormatScanner& FormatScanner::operator>>(std::int32_t& value)
{
    if (at_ == nullptr) return *this;
    const IntegerText text = ReadIntegerText(SkipBlanks(at_));
    at_ = text.end;
    if (at_ == nullptr) return *this;
    constexpr std::uint64_t kLargest = std::numeric_limits<std::int32_t>::max();
    const std::uint64_t limit = text.isNegative ? kLargest + 1 : kLargest;
    const std::int64_t magnitude =
        static_cast<std::int64_t>(text.magnitude > limit ? limit : text.magnitude);
    value = static_cast<std::int32_t>(text.isNegative ? -magnitude : magnitude);
    return *this;
}

FormatScanner& FormatScanner::operator>>(double& value)
{
    if (at_ == nullptr) return *this;
    const Real real = ReadReal(SkipBlanks(at_));
    at_ = EndOfScan(real);
    if (at_ != nullptr) value = real.value;
    return *this;
}

FormatScanner& FormatScanner::operator>>(std::string_view& word)
{
    if (at_ == nullptr) return *this;
    const char* const begin = SkipBlanks(at_);
    const char* end = EndOfWord(begin);
    if (end - begin > kLongestColumn) end = begin + kLongestColumn;
    at_ = begin == end ? nullptr : end;
    if (at_ != nullptr) word = std::string_view(begin, static_cast<std::size_t>(end - begin));
    return *this;
}

FormatScanner& FormatScanner::operator>>(char& character)
{
    if (at_ == nullptr) return *this;
    const char next = *at_;
    at_ = next == '\0' ? nullptr : at_ + 1;
    if (at_ != nullptr) character = next;
    return *this;
}

double WordToReal(std::string_view word)
{
    return ReadReal(std::string(word).c_str()).value;
}

}  // namespace tamur
