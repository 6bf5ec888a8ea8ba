// Model text, written fast.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tamur::bench {

enum class LineEnd { kLf, kCrLf };

enum class NumberStyle {
    kShort,  // as the product writes most numbers: 12.345678
    kFull,   // 17 significant digits, every fourth with an exponent
};

// Columns and lines, straight into a file.
class TextWriter {
 public:
    TextWriter(const std::filesystem::path& path, LineEnd lineEnd, NumberStyle style);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;
    ~TextWriter();

    // Each writes one column.
    TextWriter& Integer(std::int64_t value);
    TextWriter& Real(double value, int decimals = 6);
    TextWriter& Word(std::string_view word);

    void EndLine();
    void Line(std::string_view line)
    {
        Word(line);
        EndLine();
    }

    [[nodiscard]] std::uint64_t Lines() const { return lines_; }
    // Of what is in the file or on its way to it.
    [[nodiscard]] std::uint64_t Bytes() const { return flushed_ + used_; }

 private:
    void StartColumn();
    void Flush();

    std::FILE* file_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    std::uint64_t flushed_ = 0;
    std::uint64_t lines_ = 0;
    std::uint64_t reals_ = 0;
    std::string_view lineEnd_;
    NumberStyle style_;
    bool isLineStart_ = true;
};

}  // namespace tamur::bench
