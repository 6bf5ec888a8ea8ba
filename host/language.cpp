#include "host/language.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdlib>
#endif

namespace tamur::host {

std::optional<Language> ParseLanguage(std::string_view name)
{
    const std::string_view language = name.substr(0, name.find_first_of("_-.@"));
    if (language == "en") return Language::kEnglish;
    if (language == "fr") return Language::kFrench;
    return std::nullopt;
}

#ifdef _WIN32

Language LanguageOfLocale()
{
    const bool isFrench = PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_FRENCH;
    return isFrench ? Language::kFrench : Language::kEnglish;
}

#else

Language LanguageOfLocale()
{
    // The first that is set decides, as the system has it.
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const locale = std::getenv(variable);
        if (locale == nullptr || *locale == '\0') continue;
        return ParseLanguage(locale).value_or(Language::kEnglish);
    }
    return Language::kEnglish;
}

#endif

}  // namespace tamur::host
