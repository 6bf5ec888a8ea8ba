// The languages in which people are spoken to.
#pragma once

#include <cstdint>
#include <string_view>

namespace tamur::host {

enum class Language : std::uint8_t { kEnglish, kFrench };
inline constexpr int kLanguageCount = 2;

// What something is called in each language.
struct Name {
    std::string_view texts[kLanguageCount] = {};

    [[nodiscard]] constexpr std::string_view In(Language language) const
    {
        return texts[static_cast<int>(language)];
    }
};

}  // namespace tamur::host
