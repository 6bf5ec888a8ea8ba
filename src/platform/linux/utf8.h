#pragma once

#include <string>

#include "platform/platform.h"

namespace tamur::platform {

// Lone surrogates and malformed bytes become "?".
std::string ToUtf8(const OLECHAR* text);
WideString FromUtf8(const std::string& text);

}  // namespace tamur::platform
