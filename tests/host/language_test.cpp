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

}  // namespace
}  // namespace tamur::host
