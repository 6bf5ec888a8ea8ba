// What reading a model file costs at least in plain C++: blocks, lines, tokens, numbers.
#pragma once

#include <filesystem>

#include "counts.h"

namespace tamur::bench {

// Reads in blocks, splits lines with memchr, splits tokens, converts each with std::from_chars
// and stores nothing.
[[nodiscard]] Counts ReadWithFloor(const std::filesystem::path& path);

// Only reads the bytes.
void ReadBytes(const std::filesystem::path& path);

}  // namespace tamur::bench
