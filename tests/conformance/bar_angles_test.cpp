// The angle of bars, which the outline of the start section turns; versions; bars of a second
// import.
#include <gmock/gmock.h>

#include "models/bar_models.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

Record<TMRFilaire> BarOf(const ComPtr<ITAMURStructureReader>& reader, LONG rank = 0)
{
    return Filaires(*reader).At(rank);
}

TEST(BarAngles, AreTurnedByTheOutlineOfTheStartSection)
{
    // The remainder has the sign of the turned angle; nothing overflows on the way.
    const std::vector<std::pair<int, double>> angles = {
        {0, 90},   {300, 30},  {270, 0},  {269, 359},        {-90, 0},          {-200, -110},
        {-450, 0}, {-451, -1}, {720, 90}, {2147483647, 217}, {-2147483647, -37}};
    for (const auto& [angle, turned] : angles) {
        const auto bar = BarOf(ImportedBars({BarLine({.angle = angle})}));
        EXPECT_EQ(bar->Angle, turned) << angle;
        EXPECT_EQ(Utf8(bar->ErrorMessage), "#Verify H section!!!") << angle;
    }
}

TEST(BarAngles, StayOnTheDefaultSection)
{
    for (const int angle : {0, 300, 270, -200, 2147483647}) {
        const auto bar = BarOf(ImportedElements({BarLine({.angle = angle})}));
        EXPECT_EQ(bar->Angle, double(angle));
        EXPECT_EQ(bar->ErrorMessage, nullptr) << angle;
    }
}

// A section line that ends early has the outline code of a missing one.
TEST(BarAngles, AreTurnedOnSectionsWithoutAnOutline)
{
    const auto reader = Imported(
        ModelText().Section("#Geometries", {"R1 1 2 3"}).Elements({BarLine({.angle = 300})}));
    EXPECT_EQ(BarOf(reader)->StartSection.epureSec.Code, 'F');
    EXPECT_EQ(BarOf(reader)->Angle, 30.0);
}

// The first import leaves section storage, so that the second makes no default section.
TEST(BarAngles, StayWithoutAnySection)
{
    const auto reader = ImportedBars({});
    ASSERT_EQ(
        ImportText(*reader, ModelText().Elements({BarLine({.angle = 300, .startSection = 2})})),
        S_OK);
    const auto bar = BarOf(reader);
    EXPECT_EQ(Utf8(bar->StartSection.SectionLib), "");
    EXPECT_EQ(bar->StartSection.Sx, 0.0);
    EXPECT_EQ(bar->StartSection.epureSec.Code, 0);
    EXPECT_EQ(bar->Angle, 300.0);
    EXPECT_EQ(bar->ErrorMessage, nullptr);
}

TEST(BarVersions, FiveFurtherRealsHaveNoEffectWhetherReadOrNot)
{
    const std::string columns = Text(BarColumns{.group = 11, .angle = 14, .offset = 9});
    for (const std::string version : {"12.1", "12.2", "12.2A", "12.2B", "12.3", "12.10", "14.1E",
                                      "14.1E2", "14.1F", "15.0", "11", "10.1"}) {
        for (const std::string further : {"", "1.5 2.5 3.5 4.5 5.5", "1.5", "words"}) {
            const auto bar = BarOf(ImportedBars(
                {ElementLine(2).Points({"0 0 0", "3 4 0"}).Columns(columns + further)}, version));
            EXPECT_EQ(bar->GroupNumber, 11) << version << ": " << further;
            EXPECT_EQ(bar->Angle, 104.0) << version << ": " << further;
            EXPECT_EQ(bar->Excentration, FE__DROITE_BAS) << version << ": " << further;
            EXPECT_EQ(Utf8(bar->EndConnection.AttacheLib), "ART1") << version << ": " << further;
        }
    }
}

TEST(BarsOfTwoImports, KeepTheRecordsTheyWereReadWith)
{
    const auto reader = ImportedBars({BarLine({.material = 2, .startSection = 2})});
    ASSERT_EQ(
        ImportText(*reader,
                   ModelText()
                       .Section("#Materiaux", {"NEW 1"})
                       .Section("#Geometries", {"N1 1", "N2 2"})
                       .Section("#Attaches", {"LATE 1"})
                       .Elements({BarLine({.material = 3, .startSection = 2, .startRelease = 3})})),
        S_OK);
    ASSERT_EQ(Filaires(*reader).Size(), 2);

    const auto old = BarOf(reader, 0);
    EXPECT_EQ(Utf8(old->StartSection.SectionLib), "R2");
    EXPECT_EQ(old->StartSection.Sx, 200.0);
    EXPECT_EQ(old->StartSection.epureSec.nbPoints, 2);
    EXPECT_EQ(Utf8(old->FilaireMaterial.MaterialName), "S235");
    EXPECT_EQ(Utf8(old->StartConnection.AttacheLib), "ART1");

    const auto late = BarOf(reader, 1);
    EXPECT_EQ(Utf8(late->StartSection.SectionLib), "N2");        // sections start afresh
    EXPECT_EQ(Utf8(late->FilaireMaterial.MaterialName), "NEW");  // the others are extended
    EXPECT_EQ(Utf8(late->StartConnection.AttacheLib), "LATE");
}

TEST(BarsOfTwoImports, CoverTheirOwnDefaults)
{
    const auto reader = ImportedElements({BarLine()});
    ASSERT_EQ(ImportText(*reader, BarTables().Elements({BarLine({.material = 2})})), S_OK);
    const auto old = BarOf(reader, 0);
    EXPECT_EQ(Utf8(old->StartSection.SectionLib), "R20*30");
    EXPECT_EQ(Utf8(old->FilaireMaterial.MaterialName), "BETON");
    const auto late = BarOf(reader, 1);
    EXPECT_EQ(Utf8(late->StartSection.SectionLib), "R1");
    EXPECT_EQ(Utf8(late->FilaireMaterial.MaterialName), "C25");  // the default is before it
}

}  // namespace
}  // namespace tamur::test
