#include "import/scan/stream_scanner.h"

#include <limits>
#include <type_traits>

#include "import/scan/number.h"

namespace tamur {
namespace {

// Null when the number does not fit. A minus before an unsigned number counts down from zero.
template <class T>
const char* ReadAny(const char* at, T& value)
{
    const IntegerText text = ReadIntegerText(SkipBlanks(at));
    constexpr std::uint64_t kLargest = std::numeric_limits<T>::max();
    const std::uint64_t limit = std::is_signed_v<T> && text.isNegative ? kLargest + 1 : kLargest;
    if (text.end == nullptr || text.magnitude > limit) return nullptr;
    value = static_cast<T>(text.isNegative ? 0 - text.magnitude : text.magnitude);
    return text.end;
}

// The extent of a real: it takes every character that can continue one, so an exponent without
// digits is part of the token and spoils it. Null when the token is no number.
const char* EndOfReal(const char* at)
{
    if (*at == '-' || *at == '+') ++at;
    bool digits = false;
    for (bool point = false; IsDigit(*at) || (*at == '.' && !point); ++at) {
        digits = digits || IsDigit(*at);
        point = point || *at == '.';
    }
    if (!digits) return nullptr;
    if ((*at | 0x20) != 'e') return at;
    return ReadIntegerText(at + 1).end;
}

}  // namespace

void StreamScanner::GoOn(const char* at)
{
    if (at == nullptr) {
        at = kNothing;
        end_ = kNothing;
    } else if (*at == ' ') {
        ++at;  // the window wants to start at a token
    }
    at_ = at;
    window_.Clear();
}

void StreamScanner::ReadExactly(std::int32_t& value)
{
    GoOn(ReadAny(at_, value));
}

void StreamScanner::ReadExactly(std::uint32_t& value)
{
    GoOn(ReadAny(at_, value));
}

void StreamScanner::ReadExactly(std::uint16_t& value)
{
    GoOn(ReadAny(at_, value));
}

void StreamScanner::ReadExactly(double& value)
{
    const char* const begin = SkipBlanks(at_);
    const char* const end = EndOfReal(begin);
    double number = 0;
    if (end == nullptr || DecimalToReal(begin, end, number) == Magnitude::kOverflow) {
        GoOn(nullptr);
        return;
    }
    value = number;
    GoOn(end);
}

void StreamScanner::ReadExactly(char& value)
{
    const char* const at = SkipBlanks(at_);
    if (*at == '\0') {
        GoOn(nullptr);
        return;
    }
    value = *at;
    GoOn(at + 1);
}

void StreamScanner::ReadExactly(std::string_view& word)
{
    const char* const begin = SkipBlanks(at_);
    const char* const end = EndOfWord(begin);
    if (begin == end) {
        GoOn(nullptr);
        return;
    }
    word = std::string_view(begin, static_cast<std::size_t>(end - begin));
    GoOn(end);
}

}  // namespace tamur
