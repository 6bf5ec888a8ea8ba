// The languages in which people are spoken to.
#pragma once

#include <cstdint>

namespace tamur::host {

enum class Language : std::uint8_t { kEnglish, kFrench };
inline constexpr int kLanguageCount = 2;

}  // namespace tamur::host
