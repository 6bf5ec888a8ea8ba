// Model text, written fast.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace tamur::bench {

enum class LineEnd { kLf, kCrLf };

enum class NumberStyle {
    kShort,  // as the product writes most numbers: 12.345678
    kFull,   // 17 significant digits, every fourth with an exponent
};

class TextWriter {
 public:
    TextWriter(const std::filesystem::path& path, LineEnd lineEnd, NumberStyle style);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;
    ~TextWriter() { file_ << text_; }

    // Each writes one column.
    TextWriter& Word(std::string_view word);
    TextWriter& Integer(std::int64_t value) { return Word(std::to_string(value)); }
    TextWriter& Real(double value, int decimals = 6);

    void EndLine();

    [[nodiscard]] std::uint64_t Lines() const { return lines_; }

 private:
    std::ofstream file_;
    std::string text_;  // not in the file yet
    std::string_view lineEnd_;
    NumberStyle style_;
    std::uint64_t lines_ = 0;
    std::uint64_t reals_ = 0;
    bool isLineStart_ = true;
};

}  // namespace tamur::bench
