// The one-value sections, as GetStructureGlobalData gives them.
#include <gtest/gtest.h>

#include <cstring>
#include <optional>

#include "support/message_boxes.h"
#include "support/model_text.h"

namespace tamur::test {
namespace {

TMRStructureData SettingsOf(ITAMURStructureReader& reader)
{
    TMRStructureData data;
    std::memset(&data, 0x5A, sizeof data);  // no field may be left out
    EXPECT_EQ(reader.GetStructureGlobalData(&data), S_OK);
    return data;
}

// The settings of a file with those value lines; a missing one has no section.
struct Values {
    std::optional<std::string> workSpace = "0";
    std::optional<std::string> tolerance = "0.25";
    std::optional<std::string> rigidity = "0";

    [[nodiscard]] ModelText Model() const
    {
        ModelText model = ModelText::Empty().Section("#Version", {"12.1"});
        if (workSpace) model.Section("#Espace", {*workSpace});
        if (tolerance) model.Section("#Tolerance", {*tolerance});
        if (rigidity) model.Section("#Rigide", {*rigidity});
        return model;
    }
    [[nodiscard]] TMRStructureData Settings() const { return SettingsOf(*Imported(Model())); }
};

void ExpectStartValues(const TMRStructureData& data)
{
    EXPECT_EQ(data.tol3D, 0.0);
    EXPECT_EQ(data.espaceDeTravail, TMRWS_SPATIAL);
    EXPECT_EQ(data.rigideEnFlexion, TMRStructureRigide);
}

TEST(Settings, BeforeAnyImportTheyHaveStartValues)
{
    ExpectStartValues(SettingsOf(*NewReader()));
}

TEST(Settings, WorkSpaceIsPlaneGridOrElseSpatial)
{
    const struct {
        const char* line;
        TMRWorkSpace expected;
    } kCases[] = {
        {"0", TMRWS_PLAN},
        {"1", TMRWS_GRILLE},
        {"2", TMRWS_SPATIAL},
        {"7", TMRWS_SPATIAL},
        {"-1", TMRWS_SPATIAL},
        {"", TMRWS_PLAN},
        {"abc", TMRWS_PLAN},
        {"  1", TMRWS_GRILLE},
        {"\t1", TMRWS_GRILLE},
        {"+1", TMRWS_GRILLE},
        {"1 grid", TMRWS_GRILLE},
        {"1.9", TMRWS_GRILLE},
        {"1e3", TMRWS_GRILLE},
        {"0x1", TMRWS_PLAN},
        {"99999999999", TMRWS_SPATIAL},
        {"4294967296", TMRWS_SPATIAL},  // clamped, not wrapped to 0
    };
    for (const auto& each : kCases) {
        EXPECT_EQ(Values{.workSpace = each.line}.Settings().espaceDeTravail, each.expected)
            << "'" << each.line << "'";
    }
}

TEST(Settings, RigidityIsOffOnlyForZero)
{
    const struct {
        const char* line;
        TMRRigideEnFlexion expected;
    } kCases[] = {
        {"0", TMRStructureNonRigide},   {"1", TMRStructureRigide},
        {"5", TMRStructureRigide},      {"-1", TMRStructureRigide},
        {"", TMRStructureNonRigide},    {"oui", TMRStructureNonRigide},
        {"0.9", TMRStructureNonRigide}, {"5 oui", TMRStructureRigide},
    };
    for (const auto& each : kCases) {
        EXPECT_EQ(Values{.rigidity = each.line}.Settings().rigideEnFlexion, each.expected)
            << "'" << each.line << "'";
    }
}

TEST(Settings, ToleranceIsTakenAsWritten)
{
    const struct {
        const char* line;
        double expected;
    } kCases[] = {
        {"0.001", 0.001}, {"0.001 m", 0.001}, {"1e-3", 0.001}, {" .5", 0.5}, {"-2", -2.0},
        {"1,5", 1.0},     {"", 0.0},          {"abc", 0.0},    {"3m", 3.0},
    };
    for (const auto& each : kCases) {
        EXPECT_EQ(Values{.tolerance = each.line}.Settings().tol3D, each.expected)
            << "'" << each.line << "'";
    }
}

TEST(Settings, OnlyTheLineAfterTheHeaderCounts)
{
    const auto reader =
        Imported("#Version\n12.1\n#Espace\n\n1\n#Tolerance\nabc\n0.5\n#Rigide\n\n1\n");
    const auto data = SettingsOf(*reader);
    EXPECT_EQ(data.espaceDeTravail, TMRWS_PLAN);
    EXPECT_EQ(data.tol3D, 0.0);
    EXPECT_EQ(data.rigideEnFlexion, TMRStructureNonRigide);
}

TEST(Settings, HeaderInPlaceOfAValueIsNoValue)
{
    const auto data = SettingsOf(*Imported("#Version\n12.1\n#Espace\n#Tolerance\n#Rigide\n1\n"));
    EXPECT_EQ(data.espaceDeTravail, TMRWS_PLAN);
    EXPECT_EQ(data.tol3D, 0.0);
    EXPECT_EQ(data.rigideEnFlexion, TMRStructureRigide);
}

TEST(Settings, MissingHeaderEndsTheImportSilentlyAndStoresNothing)
{
    const CaughtMessageBoxes boxes;
    for (const Values& values :
         {Values{.workSpace = std::nullopt}, Values{.tolerance = std::nullopt},
          Values{.rigidity = std::nullopt}}) {
        const auto reader = NewReader();
        EXPECT_EQ(ImportText(*reader, values.Model()), E_FAIL);
        ExpectStartValues(SettingsOf(*reader));
    }
    EXPECT_TRUE(boxes.Boxes().empty());
}

TEST(Settings, FailedSecondImportLeavesThoseOfTheFirst)
{
    const auto reader = Imported(Values{.workSpace = "1"}.Model());
    const Values withoutRigidity{.workSpace = "2", .tolerance = "9", .rigidity = std::nullopt};
    EXPECT_EQ(ImportText(*reader, withoutRigidity.Model()), E_FAIL);
    const auto data = SettingsOf(*reader);
    EXPECT_EQ(data.espaceDeTravail, TMRWS_GRILLE);
    EXPECT_EQ(data.tol3D, 0.25);
    EXPECT_EQ(data.rigideEnFlexion, TMRStructureNonRigide);
}

TEST(Settings, SecondImportReplacesThem)
{
    const auto reader = Imported(Values{}.Model());
    ASSERT_EQ(ImportText(*reader, ModelText()), S_OK);
    const auto data = SettingsOf(*reader);
    EXPECT_EQ(data.espaceDeTravail, TMRWS_SPATIAL);
    EXPECT_EQ(data.tol3D, 0.001);
    EXPECT_EQ(data.rigideEnFlexion, TMRStructureRigide);
}

}  // namespace
}  // namespace tamur::test
