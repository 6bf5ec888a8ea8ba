#include "text_writer.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace tamur::bench {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;
constexpr std::size_t kLongestColumn = std::size_t{64} << 10;

constexpr double kPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

}  // namespace

TextWriter::TextWriter(const std::filesystem::path& path, LineEnd lineEnd, NumberStyle style)
    : file_(std::fopen(path.c_str(), "wb")),
      buffer_(std::make_unique<char[]>(kBufferSize)),
      lineEnd_(lineEnd == LineEnd::kCrLf ? "\r\n" : "\n"),
      style_(style)
{
    if (file_ == nullptr) throw std::runtime_error("cannot write " + path.string());
}

TextWriter::~TextWriter()
{
    Flush();
    std::fclose(file_);
}

void TextWriter::Flush()
{
    std::fwrite(buffer_.get(), 1, used_, file_);
    flushed_ += used_;
    used_ = 0;
}

void TextWriter::StartColumn()
{
    if (kBufferSize - used_ < kLongestColumn) Flush();
    if (!isLineStart_) buffer_[used_++] = ' ';
    isLineStart_ = false;
}

TextWriter& TextWriter::Integer(std::int64_t value)
{
    StartColumn();
    char* const at = buffer_.get() + used_;
    used_ += static_cast<std::size_t>(std::to_chars(at, at + 32, value).ptr - at);
    return *this;
}

TextWriter& TextWriter::Real(double value, int decimals)
{
    StartColumn();
    char* at = buffer_.get() + used_;
    char* const begin = at;
    if (style_ == NumberStyle::kFull && value != 0.0) {
        // A third of a unit in the last decimal makes the value one that needs all its digits.
        ++reals_;
        value += 1.0 / 3.0 / kPowers[decimals];
        const bool hasExponent = reals_ % 4 == 0;
        at = hasExponent ? std::to_chars(at, at + 64, value, std::chars_format::scientific, 16).ptr
                         : std::to_chars(at, at + 64, value, std::chars_format::general, 17).ptr;
    } else {
        const bool isNegative = value < 0;
        const double scale = kPowers[decimals];
        const std::int64_t scaled = std::llround(std::abs(value) * scale);
        const std::int64_t unit = static_cast<std::int64_t>(scale);
        if (isNegative) *at++ = '-';
        at = std::to_chars(at, at + 32, scaled / unit).ptr;
        if (decimals > 0) {
            *at++ = '.';
            std::int64_t rest = scaled % unit;
            for (int i = decimals - 1; i >= 0; --i, rest /= 10) {
                at[i] = static_cast<char>('0' + rest % 10);
            }
            at += decimals;
        }
    }
    used_ += static_cast<std::size_t>(at - begin);
    return *this;
}

TextWriter& TextWriter::Word(std::string_view word)
{
    StartColumn();
    std::memcpy(buffer_.get() + used_, word.data(), word.size());
    used_ += word.size();
    return *this;
}

void TextWriter::EndLine()
{
    if (kBufferSize - used_ < kLongestColumn) Flush();
    std::memcpy(buffer_.get() + used_, lineEnd_.data(), lineEnd_.size());
    used_ += lineEnd_.size();
    ++lines_;
    isLineStart_ = true;
}

}  // namespace tamur::bench
