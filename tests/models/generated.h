// Models with much in them that no engineer would write.
#pragma once

#include <cstdint>
#include <string>

namespace tamur::test {

// A seed in which any number of lines and tokens are replaced by others; the same in every run.
[[nodiscard]] std::string GeneratedModel(std::uint32_t number);

}  // namespace tamur::test
