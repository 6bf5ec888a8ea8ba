// Bars (kind 2): their columns, and what they take over from the tables of materials, sections
// and releases.
#include <gmock/gmock.h>

#include "models/bar_models.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;

constexpr const char* kMissingSection = "#Section doesn't exist.";
constexpr const char* kTurnedSection = "#Verify H section!!!";

// The bar of a model with these two sections, materials and releases.
Record<TMRFilaire> BarOf(const BarColumns& columns)
{
    return Filaires(*ImportedBars({BarLine(columns)})).At(0);
}

// The only bar of a model without sections, materials and releases.
Record<TMRFilaire> BareBarOf(const BarColumns& columns)
{
    return Filaires(*ImportedElements({BarLine(columns)})).At(0);
}

std::vector<double> OutlineOf(const TMRSectionEpure& outline)
{
    const int stride = outline.Code == 'S' ? 3 : 2;
    return std::vector<double>(outline.pTabPoints, outline.pTabPoints + stride * outline.nbPoints);
}

void ExpectFirstSection(const TMRSectionGeometry& section)
{
    EXPECT_EQ(Utf8(section.SectionLib), "R1");
    EXPECT_THAT((std::vector{section.Sx, section.Sy, section.Sz, section.Ix, section.Iy, section.Iz,
                             section.Vx, section.V1y, section.V1z, section.V2y, section.V2z}),
                ElementsAre(100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110));
    EXPECT_EQ(section.epureSec.Code, 'X');
    EXPECT_THAT(OutlineOf(section.epureSec), ElementsAre(1, 2, 3, 4));
}

TEST(Bars, EveryColumnLandsInItsField)
{
    const auto reader = ImportedBars({ElementLine(2, 4711)
                                          .Points({"1 2 3", "4 6 15"})
                                          .Labels({"P1", "P2"})
                                          .Columns(Text({11, 3, 13, 14, 15, 2, 1, 2, 1, 2, 9}))});
    const auto bar = Filaires(*reader).At(0);
    EXPECT_EQ(bar->identifier, 4711);
    EXPECT_EQ(bar->GroupNumber, 11);
    EXPECT_THAT(TextsOf(bar->ElemLabels), ElementsAre("P1", "P2"));
    EXPECT_EQ(Utf8(bar->ElementType), "PoutreV");
    EXPECT_EQ(bar->OrientationNode, 13);
    EXPECT_EQ(bar->Angle, 14.0 + 90.0);  // sections that are read have an outline code
    EXPECT_EQ(bar->MeshStep, 15);
    EXPECT_EQ(bar->RealLength, 13);
    EXPECT_EQ(Utf8(bar->CogPosition), "CentreCentre");
    EXPECT_EQ(bar->Excentration, FE__DROITE_BAS);
    EXPECT_THAT(Coordinates(bar->startPoint), ElementsAre(1, 2, 3));
    EXPECT_THAT(Coordinates(bar->endPoint), ElementsAre(4, 6, 15));
}

TEST(Bars, CarryTheWholeRecordsTheyReferTo)
{
    const auto bar = BarOf(
        {.material = 2, .startSection = 1, .endSection = 2, .startRelease = 1, .endRelease = 2});
    EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "S235");
    EXPECT_THAT(
        (std::vector{bar->FilaireMaterial.E, bar->FilaireMaterial.nu, bar->FilaireMaterial.d,
                     bar->FilaireMaterial.alpha, bar->FilaireMaterial.amortissement}),
        ElementsAre(6, 7, 8, 9, 10));
    ExpectFirstSection(bar->StartSection);
    EXPECT_EQ(Utf8(bar->EndSection.SectionLib), "R2");
    EXPECT_EQ(bar->EndSection.V2z, 210.0);
    EXPECT_EQ(bar->EndSection.epureSec.Code, 'S');
    EXPECT_THAT(OutlineOf(bar->EndSection.epureSec), ElementsAre(1, 2, 5, 3, 4, 6));
    EXPECT_EQ(Utf8(bar->StartConnection.AttacheLib), "ART1");
    EXPECT_EQ(bar->StartConnection.Rotules, ROTULE);
    EXPECT_EQ(Utf8(bar->StartConnection.Titre), "Rotule");
    EXPECT_EQ(Utf8(bar->StartConnection.Geom), "A");
    EXPECT_EQ(Utf8(bar->StartConnection.Def), "B");
    EXPECT_EQ(Utf8(bar->EndConnection.AttacheLib), "ENC2");
    EXPECT_EQ(bar->EndConnection.Rotules, ENCASTREMENT);
    EXPECT_EQ(Utf8(bar->EndConnection.Def), "D");
}

TEST(Bars, OfZeroLengthAreDroppedBeforeAnythingElse)
{
    const auto reader = ImportedBars(
        {ElementLine(2).Points({"1 2 3", "1 2 3"}).Columns(Text({})),
         ElementLine(2).Points({"0 0 0", "-0.0 0 -0"}).Columns(Text({})),
         ElementLine(2).Points({"1 2 3", "1 2 3"}).Labels({"A"}).Columns("junk"),
         ElementLine(2).Points({"1 2 3", "1 2 3", "4 5 6"}).Columns(Text({.startSection = 0})),
         "2 7 0 2 0",  // points that the line does not hold coincide
         "2 7 0 2 0 0 0 0 x"});
    EXPECT_EQ(CountElements(*reader), 0);
    EXPECT_THAT(Messages(*reader), testing::IsEmpty());
}

TEST(Bars, OfAnyOtherLengthAreKept)
{
    const auto reader = ImportedBars({ElementLine(2).Points({"1 2 3", "1 2 3.0000000000000004"}),
                                      ElementLine(2).Points({"0 0 0", "0 1e-300 0"}),
                                      "2 7 0 2 0 1 2 3 1 2"});  // the missing coordinate is 0
    ASSERT_EQ(Filaires(*reader).Size(), 3);
    EXPECT_EQ(Filaires(*reader).At(0)->RealLength, 0);
    EXPECT_EQ(Filaires(*reader).At(2)->RealLength, 3);
}

TEST(Bars, LengthIsTruncatedAndSaturates)
{
    const std::vector<std::pair<std::string_view, LONG>> lengths = {
        {"3 4 0.5", 5},
        {"2.9 0 0", 2},
        {"0 0 -2.999", 2},
        {"0.5 0 0", 0},
        {"2147483646.5 0 0", 2147483646},
        {"1e10 0 0", 2147483647},
        {"1e200 1e200 0", 2147483647}};
    for (const auto& [end, length] : lengths) {
        const auto reader = ImportedBars({ElementLine(2).Points({"0 0 0", end})});
        EXPECT_EQ(Filaires(*reader).At(0)->RealLength, length) << end;
    }
}

TEST(Bars, TypeCodesHaveNamesAndUnknownOnesNone)
{
    const std::vector<std::pair<int, std::string>> names = {
        {1, "Barre"}, {2, "Poutre"}, {3, "PoutreV"}, {4, "PoutreC"}, {5, "Tirant"},
        {0, ""},      {6, ""},       {-1, ""},       {257, ""}};
    for (const auto& [code, name] : names) {
        EXPECT_EQ(Utf8(BarOf({.type = code})->ElementType), name) << code;
    }
}

TEST(Bars, OffsetCodesCountFromOneAndUnknownOnesAreCentred)
{
    const std::vector<std::pair<int, TMRFilaireExcentration>> offsets = {
        {1, FE_GAUCHE_HAUT},     {2, FE__GAUCHE_CENTRE},  {3, FE__GAUCHE_BAS},
        {4, FE__CENTRE_HAUT},    {5, FE__CENTRE_CENTRE},  {6, FE__CENTRE_BAS},
        {7, FE__DROITE_HAUT},    {8, FE__DROITE_CENTRE},  {9, FE__DROITE_BAS},
        {0, FE__CENTRE_CENTRE},  {10, FE__CENTRE_CENTRE}, {-1, FE__CENTRE_CENTRE},
        {257, FE__CENTRE_CENTRE}};
    for (const auto& [code, offset] : offsets) {
        const auto bar = BarOf({.offset = code});
        EXPECT_EQ(bar->Excentration, offset) << code;
        EXPECT_EQ(Utf8(bar->CogPosition), "CentreCentre") << code;
    }
}

// ------------------------------------------------------------------- references

TEST(BarReferences, MissingSectionsAreTheFirstWithARemark)
{
    struct Case {
        int start, end;
        std::string startName, endName;
        bool remarked;
    };
    for (const Case& c : {Case{0, 2, "R1", "R2", true}, Case{2, 0, "R2", "R1", true},
                          Case{0, 0, "R1", "R1", true}, Case{2, 1, "R2", "R1", false}}) {
        const auto bar = BarOf({.startSection = c.start, .endSection = c.end});
        EXPECT_EQ(Utf8(bar->StartSection.SectionLib), c.startName) << c.start << ' ' << c.end;
        EXPECT_EQ(Utf8(bar->EndSection.SectionLib), c.endName) << c.start << ' ' << c.end;
        EXPECT_EQ(Utf8(bar->ErrorMessage),
                  std::string(c.remarked ? kMissingSection : "") + kTurnedSection)
            << c.start << ' ' << c.end;
    }
}

TEST(BarReferences, NumbersOutsideTheTablesAreTheFirstWithoutARemark)
{
    for (const int number : {-1, 3, 2147483647, -2147483647}) {
        const auto bar = BarOf({.material = number,
                                .startSection = number,
                                .endSection = number,
                                .startRelease = number,
                                .endRelease = number});
        EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "C25") << number;
        ExpectFirstSection(bar->StartSection);
        ExpectFirstSection(bar->EndSection);
        EXPECT_EQ(Utf8(bar->StartConnection.AttacheLib), "ART1") << number;
        EXPECT_EQ(Utf8(bar->EndConnection.AttacheLib), "ART1") << number;
        EXPECT_EQ(Utf8(bar->ErrorMessage), kTurnedSection) << number;
    }
}

TEST(BarReferences, ReleaseAndMaterialZeroAreTheFirstWithoutARemark)
{
    const auto bar = BarOf({.material = 0, .startRelease = 0, .endRelease = 0});
    EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "C25");
    EXPECT_EQ(Utf8(bar->StartConnection.AttacheLib), "ART1");
    EXPECT_EQ(Utf8(bar->EndConnection.AttacheLib), "ART1");
    EXPECT_EQ(Utf8(bar->ErrorMessage), kTurnedSection);
}

TEST(BarReferences, DefaultSectionAndMaterialWinOverAnyNumber)
{
    for (const int number : {1, 2, 99, -1}) {
        const auto bar =
            BareBarOf({.material = number, .startSection = number, .endSection = number});
        EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "BETON") << number;
        for (const TMRSectionGeometry* section : {&bar->StartSection, &bar->EndSection}) {
            EXPECT_EQ(Utf8(section->SectionLib), "R20*30") << number;
            EXPECT_EQ(section->Sx, 0.06) << number;
            EXPECT_EQ(section->epureSec.Code, 0) << number;
            EXPECT_EQ(section->epureSec.nbPoints, 0) << number;
            EXPECT_NE(section->epureSec.pTabPoints, nullptr) << number;
        }
        EXPECT_EQ(bar->ErrorMessage, nullptr) << number;
    }
}

TEST(BarReferences, MissingSectionIsRemarkedUponEvenWithTheDefaultSection)
{
    const auto bar = BareBarOf({.angle = 300, .startSection = 0});
    EXPECT_EQ(Utf8(bar->StartSection.SectionLib), "R20*30");
    EXPECT_EQ(Utf8(bar->ErrorMessage), kMissingSection);
    EXPECT_EQ(bar->Angle, 300.0);
}

TEST(BarReferences, WithoutReleasesConnectionsAreEmpty)
{
    const auto bar = BareBarOf({.startRelease = 1, .endRelease = 2});
    for (const TMRAttache* connection : {&bar->StartConnection, &bar->EndConnection}) {
        EXPECT_EQ(Utf8(connection->AttacheLib), "");
        EXPECT_EQ(connection->Rotules, ENCASTREMENT);
        EXPECT_EQ(Utf8(connection->Titre), "");
        EXPECT_EQ(Utf8(connection->Geom), "");
        EXPECT_EQ(Utf8(connection->Def), "");
    }
}

// A short line gives section 0 twice, and zeros.
TEST(BarReferences, OfAShortLineAreTheFirstOfEachTable)
{
    const auto reader = ImportedBars({ElementLine(2).Points({"0 0 0", "1 0 0"}).Columns("11 4")});
    const auto bar = Filaires(*reader).At(0);
    EXPECT_EQ(bar->GroupNumber, 11);
    EXPECT_EQ(Utf8(bar->ElementType), "PoutreC");
    ExpectFirstSection(bar->StartSection);
    EXPECT_EQ(Utf8(bar->StartConnection.AttacheLib), "ART1");
    EXPECT_EQ(Utf8(bar->FilaireMaterial.MaterialName), "C25");
    EXPECT_EQ(bar->Excentration, FE__CENTRE_CENTRE);
    EXPECT_EQ(bar->Angle, 90.0);
    EXPECT_EQ(Utf8(bar->ErrorMessage), std::string(kMissingSection) + kTurnedSection);
}

}  // namespace
}  // namespace tamur::test
