// Element lines that end after the head: every column counts as 0, which has a meaning of its own
// where a column is a code.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "models/bar_models.h"
#include "models/element_lines.h"

namespace tamur::test {
namespace {

TEST(ShortElementLines, SupportsAreOfNoCondition)
{
    const auto reader = ImportedElements({ElementLine(4).Points({"0 0 0"}),
                                          ElementLine(10).Points({"0 0 0", "1 0 0"}),
                                          ElementLine(11).Points({"0 0 0", "1 0 0", "1 1 0"})});
    EXPECT_EQ(Utf8(AppuisPonctuels(*reader).At(0)->ElementType), "Appui ponctuel vide");
    EXPECT_EQ(Utf8(AppuisLineaires(*reader).At(0)->ElementType), "Appui linéaire vide");
    EXPECT_EQ(Utf8(AppuisSurfaciques(*reader).At(0)->ElementType), "Appui surfacique vide");
}

TEST(ShortElementLines, NodesAreNotFixed)
{
    const auto reader = ImportedElements({ElementLine(1).Points({"0 0 0"})});
    EXPECT_EQ(Nodes(*reader).At(0)->blocage, 0);
}

TEST(ShortElementLines, SurfacesAreShellsOfTheFirstMaterialThatMeshThemselves)
{
    const auto reader =
        Imported(BarTables().Elements({ElementLine(3).Points({"0 0 0", "1 0 0", "1 1 0"})}));
    const auto surface = Surfaciques(*reader).At(0);
    EXPECT_EQ(Utf8(surface->ElementType), "Coque");
    EXPECT_EQ(surface->MeshType, surfMeshType_auto);
    EXPECT_EQ(Utf8(surface->SurfaciqueMaterial.MaterialName),
              Utf8(Materials(*reader).At(0)->MaterialName));
}

TEST(ShortElementLines, BarsAreOfNoTypeAndCentredAndTheirSectionsMissing)
{
    const auto reader = Imported(BarTables().Elements({ElementLine(2).Points({"0 0 0", "1 0 0"})}));
    const auto bar = Filaires(*reader).At(0);
    EXPECT_EQ(Utf8(bar->ElementType), "");
    EXPECT_EQ(bar->Excentration, FE__CENTRE_CENTRE);
    EXPECT_EQ(bar->OrientationNode, 0);
    EXPECT_EQ(bar->MeshStep, 0);
    EXPECT_THAT(Utf8(bar->ErrorMessage), testing::StartsWith("#Section doesn't exist."));
}

}  // namespace
}  // namespace tamur::test
