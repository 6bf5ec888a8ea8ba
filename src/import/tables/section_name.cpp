#include "import/tables/section_name.h"

#include <charconv>
#include <initializer_list>
#include <variant>

#include "import/scan/format_scanner.h"

namespace tamur {
namespace {

constexpr double kAbsent = -1;

// The dimensions after the letter and the characters between them, as far as they go.
struct Dimensions {
    double a = kAbsent, b = kAbsent, c = kAbsent, d = kAbsent, e = kAbsent;
    char s1 = '\0', s2 = '\0', s3 = '\0', s4 = '\0';

    [[nodiscard]] bool AreFour() const { return a >= 0 && b >= 0 && c >= 0 && d >= 0; }
};

// The T has room for a fifth dimension, the others end with the fourth.
Dimensions ReadDimensions(const char* text, bool isTee)
{
    Dimensions n;
    FormatScanner scan(text);
    scan >> n.a >> n.s1 >> n.b >> n.s2 >> n.c >> n.s3 >> n.d;
    if (isTee) scan >> n.s4 >> n.e;
    return n;
}

// Lengths whose squares are this small count as zero.
bool IsZero(double length)
{
    return length * length <= 1e-10;
}

// Puts numbers, as "%g" prints them, and characters after the letter.
std::string Compose(char letter, std::initializer_list<std::variant<double, char>> parts)
{
    std::string text(1, letter);
    for (const auto& part : parts) {
        if (const char* const character = std::get_if<char>(&part)) {
            text += *character;
            continue;
        }
        constexpr int kSignificantDigits = 6;
        char digits[32];
        const auto result = std::to_chars(digits, digits + sizeof digits, std::get<double>(part),
                                          std::chars_format::general, kSignificantDigits);
        text.append(digits, result.ptr);
    }
    return text;
}

// Drawn: a x b flange at one end of the web, c x d web, e from the edge of the flange to the
// web. Named with total height, web thickness, flange width and flange thickness.
std::string CentredTee(const Dimensions& n)
{
    return Compose('T', {n.d + n.b, n.s3, n.c, n.s2, n.a, n.s1, n.b});
}

// The web is off the middle: the flange is named as two halves, left and right of the web.
std::string WideTee(const Dimensions& n)
{
    const double right = (n.a - n.c) - n.e;
    const bool isFlat = IsZero(n.b);
    const double leftWidth = isFlat ? 0 : n.e;
    const double rightWidth = isFlat ? 0 : right;
    const double leftThickness = IsZero(n.e) ? 0 : n.b;
    const double rightThickness = IsZero(right) ? 0 : n.b;
    return Compose('T', {n.c, n.s1, n.d + n.b, n.s2, leftWidth, n.s1, leftThickness, '/', 0.0, n.s2,
                         rightWidth, n.s1, rightThickness, '/', 0.0});
}

// The part at the end is the narrower one: its thickness and position take part in each half.
// The right half always has a width: without one the web would be in the middle.
std::string NarrowTee(const Dimensions& n)
{
    const bool isFlat = IsZero(n.b);
    const bool hasNoLeft = IsZero(n.e);
    const double leftWidth = isFlat ? 0 : n.e;
    const double rightWidth = isFlat ? 0 : n.c - n.a - n.e;
    return Compose('T', {n.a, n.s1, n.d + n.b, n.s2, leftWidth, n.s1, hasNoLeft ? 0 : n.d, '/',
                         hasNoLeft ? 0 : n.b, n.s2, rightWidth, n.s1, n.d, '/', n.b});
}

std::string NormaliseTee(const Dimensions& n)
{
    const bool isCentred = n.e < 0 || IsZero((n.a - n.c) * 0.5 - n.e);
    if (isCentred) return CentredTee(n);
    return n.a > n.c ? WideTee(n) : NarrowTee(n);
}

}  // namespace

SectionName NormaliseSectionName(std::string_view name)
{
    SectionName asWritten{std::string(name)};
    const char letter = name.empty() ? '\0' : name[0];
    if (letter != 'T' && letter != 'I' && letter != 'H') return asWritten;
    const Dimensions n = ReadDimensions(asWritten.text.c_str() + 1, letter == 'T');
    if (!n.AreFour()) return asWritten;
    switch (letter) {
        case 'T': return {NormaliseTee(n)};
        case 'I': return {Compose('I', {2 * n.b + n.d, n.s1, n.c, n.s2, n.a, n.s3, n.b})};
        default: return {Compose('I', {2 * n.a + n.c, n.s1, n.d, n.s2, n.b, n.s3, n.a}), true};
    }
}

}  // namespace tamur
