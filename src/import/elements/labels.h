#pragma once

#include <cstdint>

#include "import/scan/stream_scanner.h"
#include "model/text.h"

namespace tamur {

// The next `count` words of the line as labels. Those that the line does not hold are empty.
[[nodiscard]] Labels ReadLabels(StreamScanner& tokens, std::int32_t count, Arena& arena);

void SkipLabels(StreamScanner& tokens, std::int32_t count);

}  // namespace tamur
