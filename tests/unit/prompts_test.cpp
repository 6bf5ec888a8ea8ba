#include "prompts/prompts.h"

#include <gtest/gtest.h>

namespace tamur {
namespace {

struct Expected {
    unsigned number;
    const OLECHAR* text;
};

constexpr Expected kExpected[] = {
    {13501, OLESTR("TAMURReader")},
    {13502, OLESTR("ATTENTION: Import Poids propre cas num\u00E9ro %d impossible")},
    {13503, OLESTR("ATTENTION: Import Effet thermique cas num\u00E9ro %d impossible")},
    {13504, OLESTR("Impossible d'ouvrir le fichier Tamur (%s).")},
    {13505, OLESTR("Importation Tamur Structure")},
    {13506, OLESTR("La version du fichier Tamur n'est pas correcte (< 10.1).")},
};

TEST(Prompts, EveryTextIsFoundByItsNumber)
{
    for (const Expected& expected : kExpected) {
        WideString text;
        EXPECT_EQ(KdPrompts::GetPrompt(text, expected.number, OLESTR("TAMURREADER"), 0), 1);
        EXPECT_TRUE(text == expected.text) << expected.number;
    }
}

TEST(Prompts, OtherNumbersHaveNoText)
{
    for (const unsigned number : {0u, 13500u, 13507u}) {
        WideString text = OLESTR("before");
        EXPECT_EQ(KdPrompts::GetPrompt(text, number, OLESTR("TAMURREADER"), 0), 0);
        EXPECT_TRUE(text.empty());
    }
}

TEST(Prompts, OtherSectionsHaveNoTexts)
{
    WideString text = OLESTR("before");
    EXPECT_EQ(KdPrompts::GetPrompt(text, 13501, OLESTR("TAMURREADERS"), 0), 0);
    EXPECT_TRUE(text.empty());
}

TEST(Prompts, PlaceholderIsReplacedByText)
{
    // What is put in is not looked at for placeholders.
    EXPECT_TRUE(FormatPrompt(prompt::kCannotOpen, OLESTR("C:\\100%s.txt")) ==
                OLESTR("Impossible d'ouvrir le fichier Tamur (C:\\100%s.txt)."));
    EXPECT_TRUE(FormatPrompt(prompt::kCannotOpen, OLESTR("")) ==
                OLESTR("Impossible d'ouvrir le fichier Tamur ()."));
}

TEST(Prompts, PlaceholderIsReplacedByANumber)
{
    EXPECT_TRUE(FormatPrompt(prompt::kSelfWeightRefused, -2147483647 - 1) ==
                OLESTR("ATTENTION: Import Poids propre cas num\u00E9ro -2147483648 impossible"));
    EXPECT_TRUE(FormatPrompt(prompt::kThermalRefused, 7) ==
                OLESTR("ATTENTION: Import Effet thermique cas num\u00E9ro 7 impossible"));
}

TEST(Prompts, TextWithoutPlaceholderStaysAsItIs)
{
    EXPECT_TRUE(FormatPrompt(prompt::kCaption, OLESTR("x")) ==
                OLESTR("Importation Tamur Structure"));
}

}  // namespace
}  // namespace tamur
