// The names of languages, and the user's.
#include "host/language.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace tamur::host {
namespace {

TEST(Languages, AreParsed)
{
    for (const char* name : {"fr", "fr_FR.UTF-8", "fr-CA", "fr@euro", "fr.UTF-8"}) {
        EXPECT_EQ(ParseLanguage(name), Language::kFrench) << name;
    }
    for (const char* name : {"en", "en_GB"}) EXPECT_EQ(ParseLanguage(name), Language::kEnglish);
    for (const char* name : {"", "f", "fro", "de", "C", "FR"}) EXPECT_FALSE(ParseLanguage(name));
}

#ifndef _WIN32
TEST(Languages, AreThoseOfTheLocale)
{
    ASSERT_EQ(setenv("LC_MESSAGES", "fr_FR.UTF-8", 1), 0);
    ASSERT_EQ(setenv("LC_ALL", "", 1), 0);
    EXPECT_EQ(LanguageOfLocale(), Language::kFrench);
    ASSERT_EQ(setenv("LC_ALL", "C", 1), 0);
    EXPECT_EQ(LanguageOfLocale(), Language::kEnglish);
    unsetenv("LC_ALL");
    unsetenv("LC_MESSAGES");
}
#endif

}  // namespace
}  // namespace tamur::host
