#include "host/json/json_writer.h"

#include <algorithm>
#include <cmath>

namespace tamur::host {

void JsonWriter::Number(double number)
{
    // Whole numbers have the same digits as what is whole, which are found faster; not so -0.
    constexpr double kMostWhole = 1e15;
    const bool isWhole = std::abs(number) < kMostWhole &&
                         number == static_cast<double>(static_cast<std::int64_t>(number)) &&
                         (number != 0 || !std::signbit(number));
    if (isWhole) return Number(static_cast<std::int64_t>(number));
    if (std::isnan(number)) return Text("nan");
    if (std::isinf(number)) return Text(number > 0 ? "inf" : "-inf");
    // Without a point it would be a whole number, which has no sign.
    if (number == 0) return PutWord("-0.0");
    Separate();
    PutNumber(number);
}

void JsonWriter::Text(std::string_view text)
{
    constexpr char kLead = '\xC2';  // of U+0080 to U+00BF
    Separate();
    Put('"');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : '\0');
        if (text[i] == kLead && next >= 0x80 && next < 0xA0) {
            PutEscape(next);
            ++i;
        } else {
            PutCharacter(text[i]);
        }
    }
    Put('"');
}

void JsonWriter::Text(WideStringView text)
{
    constexpr std::size_t kShort = 1000;
    const auto isPlain = [](OLECHAR c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; };
    if (text.size() > kShort || !std::all_of(text.begin(), text.end(), isPlain)) {
        return Text(ToUtf8(text));
    }
    Separate();
    char* at = Room(text.size() + 2);
    *at++ = '"';
    for (const OLECHAR c : text) *at++ = static_cast<char>(c);
    *at++ = '"';
    Use(at);
}

void JsonWriter::PutCharacter(char c)
{
    constexpr unsigned char kDelete = 0x7F;
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x20 || code == kDelete) return PutEscape(code);
    if (c == '"' || c == '\\') Put('\\');
    Put(c);
}

void JsonWriter::PutEscape(unsigned char code)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    Put("\\u00");
    Put(kDigits[code >> 4]);
    Put(kDigits[code & 15]);
}

void JsonWriter::Put(std::string_view text)
{
    if (buffer_.size() - used_ < text.size()) {
        for (const char c : text) Put(c);
        return;
    }
    std::copy(text.begin(), text.end(), buffer_.begin() + static_cast<std::ptrdiff_t>(used_));
    used_ += text.size();
}

void JsonWriter::Flush()
{
    out_.write(buffer_.data(), static_cast<std::streamsize>(used_));
    written_ += used_;
    used_ = 0;
}

}  // namespace tamur::host
