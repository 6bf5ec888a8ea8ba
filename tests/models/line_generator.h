// Lines of tokens for comparing scanners: well-formed numbers, nearly well-formed ones, and noise.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace tamur::test {

class LineGenerator {
 public:
    explicit LineGenerator(std::uint32_t seed) : random_(seed) {}

    [[nodiscard]] int Below(int limit)
    {
        return static_cast<int>(random_() % static_cast<unsigned>(limit));
    }

    // Tokens between blanks, now and then glued together.
    [[nodiscard]] std::string Line()
    {
        std::string line;
        for (int tokens = Below(9); tokens >= 0; --tokens) {
            line += Token();
            if (Below(12) != 0) line += Blank();
        }
        return line;
    }

    [[nodiscard]] std::string Token()
    {
        switch (Below(8)) {
            case 0:
            case 1: return Sign() + Digits();
            case 2: return Sign() + Digits() + "." + Digits();
            case 3: return Sign() + Real() + Exponent();
            case 4: return Sign() + Real();
            case 5: return Noise("0123456789+-.eEpPxX", 6);
            case 6: return std::string(Pick(kOddities));
            default: return Noise("abcdefinxyzANIF0129.+-_#\x04\x82\xE9", 5);
        }
    }

 private:
    std::string Sign()
    {
        switch (Below(6)) {
            case 0: return "-";
            case 1: return Below(4) == 0 ? "+" : "";
            default: return "";
        }
    }

    std::string Digits()
    {
        std::string digits;
        const int length = 1 + (Below(5) == 0 ? Below(25) : Below(9));
        const bool isZeroHeavy = Below(6) == 0;
        for (int i = 0; i < length; ++i) {
            digits += static_cast<char>('0' + (isZeroHeavy && Below(4) != 0 ? 0 : Below(10)));
        }
        return digits;
    }

    std::string Real()
    {
        switch (Below(4)) {
            case 0: return "." + Digits();
            case 1: return Digits() + ".";
            default: return Digits() + "." + Digits();
        }
    }

    std::string Exponent()
    {
        std::string exponent = Below(2) == 0 ? "e" : "E";
        exponent += Sign();
        if (Below(8) != 0) exponent += std::to_string(Below(Below(3) == 0 ? 340 : 30));
        return exponent;
    }

    std::string Blank()
    {
        switch (Below(10)) {
            case 0: return "  ";
            case 1: return "\t";
            case 2: return Below(3) == 0 ? "\r" : " \v\f";
            default: return " ";
        }
    }

    std::string Noise(std::string_view alphabet, int longest)
    {
        std::string text;
        for (int length = 1 + Below(longest); length > 0; --length) {
            text += alphabet[static_cast<std::size_t>(Below(static_cast<int>(alphabet.size())))];
        }
        return text;
    }

    template <std::size_t N>
    std::string_view Pick(const std::string_view (&choices)[N])
    {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(N)))];
    }

    static constexpr std::string_view kOddities[] = {"inf",
                                                     "-inf",
                                                     "nan",
                                                     "infinity",
                                                     "INFINITY",
                                                     "Nan",
                                                     "infi",
                                                     "0x1.8p3",
                                                     "0x",
                                                     "0x.8",
                                                     "0X1P-2",
                                                     "1e400",
                                                     "-1e400",
                                                     "1e-400",
                                                     "4e-324",
                                                     "2e-324",
                                                     "1e",
                                                     "1e+",
                                                     "1.e5",
                                                     ".5",
                                                     ".",
                                                     "-",
                                                     "+",
                                                     "-.",
                                                     "0",
                                                     "-0",
                                                     "00012",
                                                     "65535",
                                                     "65536",
                                                     "70000",
                                                     "-1",
                                                     "-65535",
                                                     "-65536",
                                                     "1..2",
                                                     "1.2.3",
                                                     "--1",
                                                     "+-1",
                                                     "12abc",
                                                     "3.5",
                                                     "1e5",
                                                     "-0.0",
                                                     "0.1e-5",
                                                     "1e308",
                                                     "1.7976931348623157e308",
                                                     "2.2250738585072014e-308",
                                                     "9007199254740993",
                                                     "0.1",
                                                     "123456789012345",
                                                     "1234567.12345678"};

    std::mt19937 random_;
};

}  // namespace tamur::test
