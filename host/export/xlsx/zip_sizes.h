// How large the members of an archive are.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace tamur::host {

// By their names, before they were packed. Of an archive below 4 GiB without a comment; empty when
// the file is none.
[[nodiscard]] std::map<std::string, std::uint32_t> ZipSizes(const std::filesystem::path& path);

}  // namespace tamur::host
