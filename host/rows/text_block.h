// Texts end to end, each once.
#pragma once

#include <tamur/utf8.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamur::host {

class TextBlock {
 public:
    // The place of the text among all texts.
    [[nodiscard]] std::int32_t Add(WideStringView text);
    [[nodiscard]] std::int32_t Add(std::string_view utf8);

    // UTF-8, each ended by a NUL.
    [[nodiscard]] const std::string& Bytes() const { return bytes_; }
    // Where each begins, and where one more would.
    [[nodiscard]] const std::vector<std::uint64_t>& Starts() const { return starts_; }
    [[nodiscard]] std::size_t Size() const { return starts_.size() - 1; }

 private:
    [[nodiscard]] std::int32_t KeepLast();
    [[nodiscard]] std::string_view At(std::uint32_t place) const;
    void Grow();

    std::string bytes_;
    std::vector<std::uint64_t> starts_ = {0};
    std::vector<std::uint32_t> slots_;   // places + 1 by their hashes; 0 is free
    std::vector<std::uint32_t> hashes_;  // of each text
};

}  // namespace tamur::host
