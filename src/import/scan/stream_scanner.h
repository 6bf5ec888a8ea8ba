// Reads a line as a stream of tokens.
#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

#include "import/scan/characters.h"
#include "import/scan/decimal.h"
#include "import/scan/digits.h"
#include "import/scan/token_window.h"

namespace tamur {

// Formatted extraction from one line: blanks before a token are skipped, a number ends at the
// first character that cannot continue it, and what follows is the next token. A token that
// cannot be read, or does not fit its variable, leaves the variable as it was and ends the
// extraction: everything after it stays unread too.
//
// The text is readable for kScanPadding bytes past its end, where there is a NUL. The common
// tokens, short plain numbers between single blanks, are read here; the exact rules are in the
// .cpp.
class StreamScanner {
 public:
    StreamScanner(const char* text, const char* end) : at_(text), end_(end) {}

    [[nodiscard]] bool Failed() const { return end_ == kNothing; }

    // Where the next token is looked for, at most the end; means nothing once a token failed.
    [[nodiscard]] const char* Place() const { return at_ < end_ ? at_ : end_; }

    // How many characters are left.
    [[nodiscard]] std::size_t Left() const
    {
        return at_ < end_ ? static_cast<std::size_t>(end_ - at_) : 0;
    }

    StreamScanner& operator>>(std::int32_t& value) { return Read(value); }
    StreamScanner& operator>>(std::uint32_t& value) { return Read(value); }
    StreamScanner& operator>>(std::uint16_t& value) { return Read(value); }
    StreamScanner& operator>>(double& value) { return Read(value); }

    // The next character that is no blank; what follows it may be glued to it.
    StreamScanner& operator>>(char& value)
    {
        const char* const end = NextEnd();
        if (at_ + 1 == end) {
            value = *at_;
            Pass(end);
        } else {
            ReadExactly(value);
        }
        return *this;
    }

    // A word, however long, as a view of the line.
    StreamScanner& operator>>(std::string_view& word)
    {
        const char* const end = NextEnd();
        const std::size_t length = static_cast<std::size_t>(end - at_);
        if (length - 1 < TokenWindow::kSize - 1) {
            word = std::string_view(at_, length);
            Pass(end);
        } else {
            ReadExactly(word);
        }
        return *this;
    }

    template <class T, std::size_t N>
    StreamScanner& operator>>(T (&values)[N])
    {
        for (T& value : values) *this >> value;
        return *this;
    }

    // Reads a token and forgets it.
    template <class T>
    StreamScanner& Skip()
    {
        T ignored{};
        return *this >> ignored;
    }

 private:
    // Where a failed scanner is: reading on fails again, without a flag to test.
    static constexpr char kNothing[kScanPadding] = {};

    template <class T>
    StreamScanner& Read(T& value)
    {
        const char* const end = NextEnd();
        if (IsShortNumber(at_, end, value)) {
            Pass(end);
        } else {
            ReadExactly(value);
        }
        return *this;
    }

    // Each reads the next token by the exact rules.
    void ReadExactly(std::int32_t& value);
    void ReadExactly(std::uint32_t& value);
    void ReadExactly(std::uint16_t& value);
    void ReadExactly(double& value);
    void ReadExactly(char& value);
    void ReadExactly(std::string_view& word);

    // Goes on at `at`; null is a failure.
    void GoOn(const char* at);

    const char* NextEnd()
    {
        if (window_.IsUsedUp()) {
            if (at_ > end_) at_ = end_;  // the last token was passed with its NUL
            window_.MoveTo(at_, end_);
        }
        return window_.NextEnd();
    }
    void Pass(const char* end)
    {
        window_.PassEnd();
        at_ = end + 1;
    }

    // An unsigned integer of 1 to 7 digits.
    template <class T>
    static bool IsShortNumber(const char* at, const char* end, T& value)
    {
        const std::uint64_t word = LoadWord(at);
        const std::ptrdiff_t digits = end - at;
        if (static_cast<std::size_t>(digits - 1) >= 7 || LeadingDigits(word) != digits) {
            return false;
        }
        const std::uint32_t number = DigitsToInteger(word, static_cast<int>(digits));
        if constexpr (sizeof(T) < sizeof number) {
            if (number > std::numeric_limits<T>::max()) return false;
        }
        value = static_cast<T>(number);
        return true;
    }

    static bool IsShortNumber(const char* at, const char* end, double& value)
    {
        return kHasShuffle ? PlainDecimalByShuffle(at, end, value) : PlainDecimal(at, end, value);
    }

    const char* at_;
    const char* end_;
    TokenWindow window_;
};

}  // namespace tamur
