#pragma once

#include <cstdint>

#include "import/scan/stream_scanner.h"
#include "model/labels.h"

namespace tamur {

// The next `count` words of the line, at most kLargestCount, as labels.
[[nodiscard]] Labels ReadLabels(StreamScanner& tokens, std::int32_t count, Arena& arena);

void SkipLabels(StreamScanner& tokens, std::int32_t count);

}  // namespace tamur
