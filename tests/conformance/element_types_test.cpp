// What codes and numbers of the columns are turned into: type names, mesh types, materials, ranks
// of groups.
#include <gmock/gmock.h>

#include "models/element_lines.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

// A surface with that type code, material, mesh code and thickness 0.2.
std::string SurfaceLine(int type, int material = 1, int mesh = 1)
{
    return ElementLine(3).Points({"0 0 0"}).Columns("0 " + std::to_string(type) + " " +
                                                    std::to_string(material) + " " +
                                                    std::to_string(mesh) + " 1 1 0.2 0 0");
}

TEST(ElementTypes, SurfaceCodesHaveNamesAndUnknownOnesAreShells)
{
    const std::vector<std::pair<int, std::string>> names = {
        {1, "Membrane"},  {2, "Plaque"},  {3, "Coque"},  {4, "Plaque E"}, {5, "Coque E"},
        {6, "Déf Plane"}, {7, "Axisym"},  {0, "Coque"},  {8, "Coque"},    {9, "Coque"},
        {-1, "Coque"},    {257, "Coque"}, {258, "Coque"}};
    for (const auto& [code, name] : names) {
        const auto reader = ImportedElements({SurfaceLine(code)});
        const auto surface = Surfaciques(*reader).At(0);
        EXPECT_EQ(Utf8(surface->ElementType), name) << code;
        EXPECT_EQ(surface->Thickness, code == 6 ? 1.0 : 0.2) << code;
    }
}

TEST(ElementTypes, PlaneStrainIsOneThickWhateverTheLineSays)
{
    const auto reader =
        ImportedElements({ElementLine(3).Points({"0 0 0"}).Columns("0 6"),
                          ElementLine(3).Points({"0 0 0"}).Columns("0 6 1 1 1 1 0.2 0.3 0.4")});
    EXPECT_EQ(Surfaciques(*reader).At(0)->Thickness, 1.0);
    EXPECT_EQ(Surfaciques(*reader).At(1)->Thickness, 1.0);
    EXPECT_EQ(Surfaciques(*reader).At(1)->PenteX, 0.3);
}

TEST(ElementTypes, MeshCodesCountFromOneAndUnknownOnesAreAutomatic)
{
    const std::vector<std::pair<int, TMRTypeMaillageSurfacique>> types = {
        {1, surfMeshType_auto},  {2, surfMeshType_libre}, {3, surfMeshType_impose},
        {4, surfMeshType_sans},  {0, surfMeshType_auto},  {5, surfMeshType_auto},
        {-1, surfMeshType_auto}, {258, surfMeshType_auto}};
    for (const auto& [code, type] : types) {
        const auto reader = ImportedElements({SurfaceLine(1, 1, code)});
        EXPECT_EQ(Surfaciques(*reader).At(0)->MeshType, type) << code;
    }
}

TEST(ElementTypes, SupportsAreNamedByKindAndCondition)
{
    const std::vector<std::pair<int, std::string>> conditions = {
        {1, "rigide"}, {2, "élastique"}, {3, "butée"}, {0, "vide"},
        {4, "vide"},   {7, "vide"},      {-1, "vide"}, {257, "vide"}};
    for (const auto& [code, word] : conditions) {
        const std::string columns = "0 " + std::to_string(code);
        const auto reader =
            ImportedElements({ElementLine(4).Points({"0 0 0"}).Columns(columns),
                              ElementLine(10).Points({"0 0 0", "1 0 0"}).Columns(columns),
                              ElementLine(11).Columns(columns)});
        EXPECT_EQ(Utf8(AppuisPonctuels(*reader).At(0)->ElementType), "Appui ponctuel " + word);
        EXPECT_EQ(Utf8(AppuisLineaires(*reader).At(0)->ElementType), "Appui linéaire " + word);
        EXPECT_EQ(Utf8(AppuisSurfaciques(*reader).At(0)->ElementType), "Appui surfacique " + word);
    }
}

// Hosts rely on these lengths alone; blanks are what the component fills them with.
TEST(ElementTypes, DisplacementsSectionsAndCablesHaveAsManyBlanksAsTheirKindNumber)
{
    const auto reader = ImportedElements({ElementLine(12).Points({"0 0 0"}),
                                          ElementLine(15).Points({"0 0 0", "1 0 0"}),
                                          ElementLine(21).Points({"0 0 0", "1 0 0"})});
    const auto displacement = Deplacements(*reader).At(0);
    const auto section = SurfacicSections(*reader).At(0);
    const auto cable = Cables(*reader).At(0);
    EXPECT_EQ(Utf8(displacement->ElementType), std::string(12, ' '));
    EXPECT_EQ(Utf8(section->ElementType), std::string(15, ' '));
    EXPECT_EQ(Utf8(cable->ElementType), std::string(21, ' '));
    EXPECT_EQ(SysStringByteLen(cable->ElementType), 21 * sizeof(OLECHAR));
}

TEST(ElementTypes, NodesKeepEightBitsOfTheirFixity)
{
    const auto reader = ImportedElements({ElementLine(1).Points({"0 0 0"}).Columns("300"),
                                          ElementLine(1).Points({"0 0 0"}).Columns("-1")});
    EXPECT_EQ(Nodes(*reader).At(0)->blocage, 44);
    EXPECT_EQ(Nodes(*reader).At(1)->blocage, 255);
}

TEST(ElementTypes, CasesAndFramesOfLoadsAreNotChecked)
{
    const auto reader =
        ImportedElements({ElementLine(5).Points({"0 0 0"}).Columns("99 -7 1 1 1 1 1 1")});
    EXPECT_EQ(ChargesPonctuelles(*reader).At(0)->NumCas, 99);
    EXPECT_EQ(ChargesPonctuelles(*reader).At(0)->Repere, -7);
    EXPECT_THAT(Messages(*reader), testing::IsEmpty());
}

// ------------------------------------------------------------------- materials

std::string MaterialOf(ITAMURStructureReader& reader, LONG rank = 0)
{
    return Utf8(Surfaciques(reader).At(rank)->SurfaciqueMaterial.MaterialName);
}

TEST(SurfaceMaterials, NumbersOutsideTheTableMeanTheFirst)
{
    for (const int number : {1, 0, -1, 3, 2147483647, -2147483647}) {
        const auto reader = Imported(ModelText()
                                         .Section("#Materiaux", {"FIRST 1", "SECOND 2"})
                                         .Elements({SurfaceLine(1, number)}));
        EXPECT_EQ(MaterialOf(*reader), "FIRST") << number;
    }
}

TEST(SurfaceMaterials, DefaultWinsOverAnyNumber)
{
    for (const int number : {0, 1, 2, 99}) {
        const auto reader = ImportedElements({SurfaceLine(1, number)});
        const auto surface = Surfaciques(*reader).At(0);
        EXPECT_EQ(Utf8(surface->SurfaciqueMaterial.MaterialName), "BETON") << number;
        EXPECT_EQ(surface->SurfaciqueMaterial.E, 1.962e10) << number;
        EXPECT_EQ(surface->SurfaciqueMaterial.amortissement, 0.04) << number;
    }
}

TEST(SurfaceMaterials, OfTwoImportsAreNumberedThrough)
{
    const auto reader = ImportedElements({SurfaceLine(1, 2)});
    ASSERT_EQ(ImportText(*reader, ModelText()
                                      .Section("#Materiaux", {"FIRST 1", "SECOND 2"})
                                      .Elements({SurfaceLine(1, 2), SurfaceLine(1, 1)})),
              S_OK);
    EXPECT_EQ(MaterialOf(*reader, 0), "BETON");
    EXPECT_EQ(MaterialOf(*reader, 1), "FIRST");  // the default of the first import is before
    EXPECT_EQ(MaterialOf(*reader, 2), "BETON");
}

// ------------------------------------------------------------------- ranks of groups

// NumGrp of a self-weight load on group `number` of kind `kind`.
int RankOf(const std::vector<std::string>& groups, const std::string& kindAndNumber)
{
    const auto reader =
        Imported(ModelText()
                     .Section("#Groupes", groups)
                     .Section("#Cas", {"1 G 1 G 0", "2 T 1 T 0"})
                     .Elements({ElementLine(8).Columns("1 0 0 -1 " + kindAndNumber),
                                ElementLine(13).Columns("2 20 0 0 " + kindAndNumber)}));
    const auto selfWeight = ChargesPoidsPropre(*reader).At(0);
    const auto thermal = ChargesThermiques(*reader).At(0);
    EXPECT_EQ(selfWeight->NumGrp, thermal->NumGrp) << kindAndNumber;
    EXPECT_EQ(selfWeight->ElemGrp, thermal->ElemGrp) << kindAndNumber;
    return selfWeight->NumGrp;
}

TEST(GroupRanks, ReplaceTheNumberOfAGroupOfThatKind)
{
    const std::vector<std::string> groups = {"2 10 2 A Oui", "3 30 1 B Oui", "2 30 2 C Oui"};
    EXPECT_EQ(RankOf(groups, "2 30"), 3);
    EXPECT_EQ(RankOf(groups, "3 30"), 2);
    EXPECT_EQ(RankOf(groups, "2 10"), 1);
}

TEST(GroupRanks, LeaveNumbersWithoutAGroup)
{
    const std::vector<std::string> groups = {"2 10 2 A Oui", "3 30 1 B Oui"};
    EXPECT_EQ(RankOf(groups, "3 10"), 10);
    EXPECT_EQ(RankOf(groups, "2 99"), 99);
    EXPECT_EQ(RankOf(groups, "0 -4"), -4);
    EXPECT_EQ(RankOf({}, "2 10"), 10);
}

TEST(GroupRanks, TakeTheFirstOfEqualGroups)
{
    EXPECT_EQ(RankOf({"2 7 2 A Oui", "2 30 2 B Oui", "2 30 2 C Oui"}, "2 30"), 2);
}

TEST(GroupRanks, CompareTheEightBitsThatAGroupKeepsOfItsKind)
{
    EXPECT_EQ(RankOf({"9 9 1 A Oui", "258 30 2 B Oui"}, "2 30"), 2);
    EXPECT_EQ(RankOf({"9 9 1 A Oui", "258 30 2 B Oui"}, "258 30"), 30);
    EXPECT_EQ(RankOf({"9 9 1 A Oui", "-1 30 2 B Oui"}, "255 30"), 2);
    EXPECT_EQ(RankOf({"9 9 1 A Oui", "-1 30 2 B Oui"}, "-1 30"), 30);
}

TEST(GroupRanks, OfASecondImportAreThoseOfItsOwnGroups)
{
    const auto reader = Imported(ModelText().Section("#Groupes", {"2 5 2 A Oui", "2 6 2 B Oui"}));
    ASSERT_EQ(ImportText(*reader, ModelText()
                                      .Section("#Groupes", {"2 6 2 C Oui"})
                                      .Section("#Cas", {"1 G 1 G 0"})
                                      .Elements({ElementLine(8).Columns("1 0 0 -1 2 6"),
                                                 ElementLine(8).Columns("1 0 0 -1 2 5")})),
              S_OK);
    EXPECT_EQ(ChargesPoidsPropre(*reader).At(0)->NumGrp, 1);
    EXPECT_EQ(ChargesPoidsPropre(*reader).At(1)->NumGrp, 5);
}

}  // namespace
}  // namespace tamur::test
