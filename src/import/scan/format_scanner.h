// Reads a line column by column.
#pragma once

#include <cstdint>
#include <string_view>

namespace tamur {

// Words longer than this are cut; the rest is the next column.
inline constexpr int kLongestColumn = 255;

// Reads as the C library's scanning does, one conversion a call: the first that fails stops the
// scan, its variable and all later ones stay as they were.
class FormatScanner {
 public:
    explicit FormatScanner(const char* text) : at_(text) {}

    [[nodiscard]] bool Failed() const { return at_ == nullptr; }

    // Where the next column is looked for; null once a conversion failed.
    [[nodiscard]] const char* Place() const { return at_; }

    // "%d". Numbers beyond 32 bits are clamped.
    FormatScanner& operator>>(std::int32_t& value);

    // "%lf": decimal, hexadecimal, infinities and NaN. Too large is infinite, too small is 0.
    FormatScanner& operator>>(double& value);

    // "%255s", as a view of the line.
    FormatScanner& operator>>(std::string_view& word);

    // "%c": the next character, blank or not.
    FormatScanner& operator>>(char& character);

 private:
    const char* at_;  // null once a conversion failed
};

// The number that a word starts with, in any form that "%lf" reads; 0.0 when it is none.
[[nodiscard]] double WordToReal(std::string_view word);

}  // namespace tamur
