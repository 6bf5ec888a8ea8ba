// The language of the locale, which Linux has in the environment.
#include "host/language.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace tamur::host {
namespace {

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

}  // namespace
}  // namespace tamur::host
