#include "text_writer.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

namespace tamur::bench {

TextWriter::TextWriter(const std::filesystem::path& path, LineEnd lineEnd, NumberStyle style)
    : file_(path, std::ios::binary),
      lineEnd_(lineEnd == LineEnd::kCrLf ? "\r\n" : "\n"),
      style_(style)
{
    if (!file_) throw std::runtime_error("cannot write " + path.string());
}

TextWriter& TextWriter::Word(std::string_view word)
{
    if (!isLineStart_) text_ += ' ';
    isLineStart_ = false;
    text_ += word;
    return *this;
}

TextWriter& TextWriter::Real(double value, int decimals)
{
    char digits[64];
    char* const limit = digits + sizeof digits;
    char* end = nullptr;
    if (style_ == NumberStyle::kShort || value == 0.0) {
        end = std::to_chars(digits, limit, value, std::chars_format::fixed, decimals).ptr;
    } else {
        // A third of a unit in the last decimal makes the value one that needs all its digits.
        value += 1.0 / 3.0 / std::pow(10.0, decimals);
        const bool hasExponent = ++reals_ % 4 == 0;
        end = hasExponent
                  ? std::to_chars(digits, limit, value, std::chars_format::scientific, 16).ptr
                  : std::to_chars(digits, limit, value, std::chars_format::general, 17).ptr;
    }
    return Word({digits, end});
}

void TextWriter::EndLine()
{
    constexpr std::size_t kFlushed = std::size_t{1} << 20;
    text_ += lineEnd_;
    ++lines_;
    isLineStart_ = true;
    if (text_.size() < kFlushed) return;
    file_ << text_;
    text_.clear();
}

}  // namespace tamur::bench
