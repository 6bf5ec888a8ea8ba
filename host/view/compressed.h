// Bytes as text of a page.
#pragma once

#include <string>
#include <string_view>

namespace tamur::host::view {

// Deflated, with the frame of zlib. Throws std::bad_alloc.
[[nodiscard]] std::string Deflated(std::string_view bytes);

void AppendBase64(std::string& out, std::string_view bytes);

}  // namespace tamur::host::view
