// Text of the file is in code page 1252, the ANSI code page of the systems that the product runs
// on.
#include <gtest/gtest.h>

#include "support/model_text.h"
#include "support/texts.h"

namespace tamur::test {
namespace {

// 0x80 to 0x9F; five of them name no character and stay the control characters that they are.
constexpr OLECHAR kHigh[] = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178,
};

TEST(AnsiText, EveryByteIsItsCharacter)
{
    std::vector<std::string> lines;
    for (int byte = 0x21; byte <= 0xFF; ++byte) {
        lines.push_back(std::string("m") + static_cast<char>(byte) + " 1");
    }
    const auto reader = Imported(ModelText().Section("#Materiaux", lines));
    const auto materials = Materials(*reader);
    ASSERT_EQ(materials.Size(), static_cast<LONG>(lines.size()));
    for (int byte = 0x21; byte <= 0xFF; ++byte) {
        const OLECHAR expected =
            byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80] : static_cast<OLECHAR>(byte);
        const auto material = materials.At(byte - 0x21);
        ASSERT_EQ(SysStringLen(material->MaterialName), 2u) << byte;
        EXPECT_EQ(material->MaterialName[0], OLECHAR{'m'}) << byte;
        EXPECT_EQ(material->MaterialName[1], expected) << byte;
    }
}

}  // namespace
}  // namespace tamur::test
