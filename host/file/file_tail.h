// What is in a file after the text that was imported of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/findings/finding.h"

namespace tamur::host {

struct FileTail {
    std::uint64_t lines = 0;      // after Ctrl-Z
    std::uint64_t dataLines = 0;  // of those, with something in them
    std::string error;            // why there is no more text; empty at the end or at Ctrl-Z
};

// What the system says of a read that failed.
[[nodiscard]] std::string ReadErrorText();

// `offset` is where the text ended.
[[nodiscard]] FileTail ReadTail(const std::string& utf8Path, std::uint64_t offset);

// Why the import could not open it.
[[nodiscard]] Finding WhyNotOpened(const std::string& utf8Path);

}  // namespace tamur::host
