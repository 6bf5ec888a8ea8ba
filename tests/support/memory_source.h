// Files that tests make up.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include "platform/platform.h"

namespace tamur::test {

// Bytes in memory, given out in pieces of at most `piece` bytes; reading at or after `failsAt`
// fails.
class MemorySource final : public platform::BlockSource {
 public:
    explicit MemorySource(std::string content, std::size_t piece = ~std::size_t{0},
                          std::uint64_t failsAt = ~std::uint64_t{0})
        : content_(std::move(content)), piece_(piece), failsAt_(failsAt)
    {
    }

    std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override
    {
        const std::uint64_t end = std::min<std::uint64_t>(content_.size(), failsAt_);
        if (offset >= end) return 0;
        const std::size_t got = std::min({size, piece_, static_cast<std::size_t>(end - offset)});
        std::memcpy(buffer, content_.data() + offset, got);
        return got;
    }

    // What a file that is written to while it is read does.
    void Replace(std::string content) { content_ = std::move(content); }

 private:
    std::string content_;
    std::size_t piece_;
    std::uint64_t failsAt_;
};

}  // namespace tamur::test
