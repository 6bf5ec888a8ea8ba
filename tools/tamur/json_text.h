// JSON as text that any reader takes and no terminal obeys.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace tamur::tool {

using Json = nlohmann::ordered_json;

// Exact UTF-8. Bytes that are none are replaced; the control characters that JSON allows in texts,
// U+007F to U+009F, are escaped. On one line when `indent` is -1.
[[nodiscard]] std::string JsonText(const Json& value, int indent = -1);

}  // namespace tamur::tool
