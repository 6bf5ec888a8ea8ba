// Walls (kind 20): their columns, the switches, and the two scales of wind types.
#include <gmock/gmock.h>

#include "models/element_lines.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;

// Columns 11 to 22 with distinct values, then four zones.
constexpr std::string_view kUpToPermeability = "11 N O 14 15.5 16.5 17.5 18.5 19.5 V 2 22.5";
constexpr std::string_view kZones =
    " 23 24.5 25.5 26.5 27 28.5 29.5 30.5 31 32.5 33.5 34.5 35 36.5 37.5 38.5";

std::string WallLine(std::string_view columns)
{
    return ElementLine(20).Points({"0 0 0", "1 0 0"}).Columns(columns);
}

// The only wall of a model with that line.
Record<TMRParoi> WallOf(std::string_view columns)
{
    return Parois(*ImportedElements({WallLine(columns)})).At(0);
}

std::vector<double> SpansOf(const TMRParoi& wall)
{
    return std::vector<double>(wall.portCoef.tabCoef,
                               wall.portCoef.tabCoef + wall.portCoef.nbPoints);
}

TEST(Walls, EveryColumnLandsInItsField)
{
    const auto reader =
        ImportedElements({ElementLine(20, 4711)
                              .Points({"1 2 3", "4 5 6", "7 8 9", "10 11 12"})
                              .Labels({"P1", "P2"})
                              .Columns(std::string(kUpToPermeability) + std::string(kZones) +
                                       " 39.5 40.5 41.5 42.5 43.5")});
    const auto wall = Parois(*reader).At(0);
    EXPECT_EQ(wall->identifier, 4711);
    EXPECT_THAT(Coordinates(wall->Surface), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    EXPECT_THAT(TextsOf(wall->ElemLabels), ElementsAre("P1", "P2"));
    EXPECT_EQ(wall->iSensPortee, 11);
    EXPECT_EQ(wall->bNeige, 0);
    EXPECT_EQ(wall->bAccumulation, 1);
    EXPECT_EQ(wall->iModeAccumulation, 14);
    EXPECT_EQ(wall->dCoefLongueur, 15.5);
    EXPECT_EQ(wall->dCoefPaNormale, 16.5);
    EXPECT_EQ(wall->dCoefPbNormale, 17.5);
    EXPECT_EQ(wall->dCoefPaExtreme, 18.5);
    EXPECT_EQ(wall->dCoefPbExtreme, 19.5);
    EXPECT_EQ(wall->bVent, 1);
    EXPECT_EQ(wall->iVentType, 2);
    EXPECT_EQ(wall->dPermeabilite, 22.5);
    EXPECT_THAT(wall->iStatutVent, ElementsAre(23, 27, 31, 35));
    EXPECT_THAT(wall->dCe, ElementsAre(24.5, 28.5, 32.5, 36.5));
    EXPECT_THAT(wall->dCiSupression, ElementsAre(25.5, 29.5, 33.5, 37.5));
    EXPECT_THAT(wall->dCiDepression, ElementsAre(26.5, 30.5, 34.5, 38.5));
    EXPECT_EQ(wall->portCoef.nbPoints, 4);
    EXPECT_THAT(SpansOf(*wall), ElementsAre(39.5, 40.5, 41.5, 42.5));  // one for each corner
}

TEST(Walls, SpanCoefficientsThatTheLineDoesNotHoldAreZero)
{
    const auto wall = WallOf(std::string(kUpToPermeability) + std::string(kZones) + " 39.5");
    EXPECT_THAT(SpansOf(*wall), ElementsAre(39.5, 0.0));
    const auto shorter = WallOf("11 O");
    EXPECT_EQ(shorter->iSensPortee, 11);
    EXPECT_EQ(shorter->bNeige, 1);
    EXPECT_EQ(shorter->bAccumulation, 0);
    EXPECT_EQ(shorter->bVent, 0);
    EXPECT_EQ(shorter->iVentType, 0);
    EXPECT_THAT(shorter->iStatutVent, ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(SpansOf(*shorter), ElementsAre(0.0, 0.0));
}

TEST(Walls, WithoutPointsHaveAnEmptyBlockOfSpanCoefficients)
{
    const auto reader = ImportedElements(
        {ElementLine(20).Columns(std::string(kUpToPermeability) + std::string(kZones) + " 39.5")});
    const auto wall = Parois(*reader).At(0);
    EXPECT_EQ(wall->Surface.nbPoints, 0);
    EXPECT_EQ(wall->portCoef.nbPoints, 0);
    EXPECT_NE(wall->portCoef.tabCoef, nullptr);
    EXPECT_EQ(wall->dCiDepression[3], 38.5);
}

// ------------------------------------------------------------------- switches

TEST(WallSwitches, AreOnForFourLetters)
{
    for (const char letter : {'O', 'o', 'V', 'v'}) {
        const std::string columns = std::string("1 ") + letter + " N 1 1 1 1 1 1 " + letter;
        const auto wall = WallOf(columns);
        EXPECT_EQ(wall->bNeige, 1) << letter;
        EXPECT_EQ(wall->bAccumulation, 0) << letter;
        EXPECT_EQ(wall->bVent, 1) << letter;
    }
    for (const char letter : {'N', 'n', '0', '1', 'x', 'F', '-', '\xD4'}) {
        const std::string columns = std::string("1 ") + letter + " O 1 1 1 1 1 1 " + letter;
        const auto wall = WallOf(columns);
        EXPECT_EQ(wall->bNeige, 0) << letter;
        EXPECT_EQ(wall->bAccumulation, 1) << letter;
        EXPECT_EQ(wall->bVent, 0) << letter;
    }
}

TEST(WallSwitches, MayBeGluedToTheirNeighbours)
{
    const auto wall = WallOf("11NO14 15.5 16.5 17.5 18.5 19.5v2 22.5");
    EXPECT_EQ(wall->iSensPortee, 11);
    EXPECT_EQ(wall->bNeige, 0);
    EXPECT_EQ(wall->bAccumulation, 1);
    EXPECT_EQ(wall->iModeAccumulation, 14);
    EXPECT_EQ(wall->dCoefPbExtreme, 19.5);
    EXPECT_EQ(wall->bVent, 1);
    EXPECT_EQ(wall->iVentType, 2);
    EXPECT_EQ(wall->dPermeabilite, 22.5);
}

TEST(WallSwitches, AreOneCharacterEachWhateverItIs)
{
    const auto digits = WallOf("11 0114 15.5");  // switches 0 and 1, mode 14
    EXPECT_EQ(digits->bNeige, 0);
    EXPECT_EQ(digits->bAccumulation, 0);
    EXPECT_EQ(digits->iModeAccumulation, 14);
    EXPECT_EQ(digits->dCoefLongueur, 15.5);

    const auto word = WallOf("11 OUI 14 15.5");  // "O", "U", and no number where "I" is
    EXPECT_EQ(word->bNeige, 1);
    EXPECT_EQ(word->bAccumulation, 0);
    EXPECT_EQ(word->iModeAccumulation, 0);
    EXPECT_EQ(word->dCoefLongueur, 0.0);
}

TEST(WallSwitches, AreOffAfterABadColumn)
{
    const auto wall = WallOf("x O O 14 15.5 16.5 17.5 18.5 19.5 O 2 22.5");
    EXPECT_EQ(wall->bNeige, 0);
    EXPECT_EQ(wall->bAccumulation, 0);
    EXPECT_EQ(wall->bVent, 0);
    EXPECT_EQ(wall->iVentType, 0);
}

// ------------------------------------------------------------------- wind types

// What a file of that version and "#SP" line makes of wind types.
std::vector<int> WindTypes(std::string_view version, const std::vector<std::string>& servicePack,
                           const std::vector<std::string>& types)
{
    ModelText model(version);
    if (!servicePack.empty()) model.Section("#SP", servicePack);
    std::vector<std::string> lines;
    for (const std::string& type : types) {
        lines.push_back(WallLine("1 N N 0 0 0 0 0 0 N " + type + " 0"));
    }
    const auto reader = Imported(model.Elements(lines));
    std::vector<int> mapped;
    for (const auto& wall : Parois(*reader)) mapped.push_back(wall->iVentType);
    return mapped;
}

const std::vector<std::string> kTypes = {"-2147483648", "-3", "0", "1", "2",         "3",
                                         "4",           "5",  "6", "7", "2147483647"};
constexpr int kLowest = -2147483647 - 1;
const std::vector<int> kOldScale = {kLowest, -3, 0, 1, 2, 3, 4, 1, 1, 1, 1};
const std::vector<int> kNewScale = {kLowest, -3, 0, 1, 2, 2, 3, 4, 1, 1, 1};

TEST(WindTypes, OfVersionsUpTo14_1EKeepTheOldScale)
{
    for (const std::string version : {"10.1", "11", "12.2", "12.2A", "12.2B", "12.10", "14.1",
                                      "14.1D", "14.1D9", "14", "14.0Z"}) {
        EXPECT_EQ(WindTypes(version, {}, kTypes), kOldScale) << version;
        EXPECT_EQ(WindTypes(version, {"2"}, kTypes), kOldScale) << version << " with a pack";
    }
}

TEST(WindTypes, OfVersionsBeyond14_1EUseTheNewScale)
{
    // "14.1E2" differs in the sixth byte, the last that counts; bytes compare as unsigned.
    for (const std::string version :
         {"14.1E2", "14.1E ", "14.1F", "14.1e", "14.1\xC9", "14.2", "15.0", "15", "20.1"}) {
        EXPECT_EQ(WindTypes(version, {}, kTypes), kNewScale) << version;
        EXPECT_EQ(WindTypes(version, {"0"}, kTypes), kNewScale) << version << " with pack 0";
    }
}

TEST(WindTypes, Of14_1EFollowTheServicePack)
{
    for (const std::string pack : {"-1", "0", "1", "abc", "1.9"}) {
        EXPECT_EQ(WindTypes("14.1E", {pack}, kTypes), kOldScale) << pack;
    }
    for (const std::string pack : {"2", "3", " 2 ", "2abc", "100"}) {
        EXPECT_EQ(WindTypes("14.1E", {pack}, kTypes), kNewScale) << pack;
    }
    EXPECT_EQ(WindTypes("14.1E", {}, kTypes), kOldScale);
}

TEST(WindTypes, FollowTheFileOfTheirImport)
{
    const auto reader = Imported(ModelText("15.0").Elements({WallLine("1 N N 0 0 0 0 0 0 N 4 0")}));
    ASSERT_EQ(
        ImportText(*reader, ModelText("12.1").Elements({WallLine("1 N N 0 0 0 0 0 0 N 4 0")})),
        S_OK);
    EXPECT_EQ(Parois(*reader).At(0)->iVentType, 3);
    EXPECT_EQ(Parois(*reader).At(1)->iVentType, 4);
}

}  // namespace
}  // namespace tamur::test
