// The languages in which people are spoken to.
#pragma once

#include <cstdint>
#include <optional>
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

// Of "en", "fr", and of names of locales that begin so: "fr_FR.UTF-8", "fr-CA".
[[nodiscard]] std::optional<Language> ParseLanguage(std::string_view name);

// The user's; English when theirs is not spoken.
[[nodiscard]] Language LanguageOfLocale();

}  // namespace tamur::host
