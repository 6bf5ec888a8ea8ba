// Every column of every kind lands in its field; bars and walls have tests of their own.
#include <gmock/gmock.h>

#include "models/element_lines.h"
#include "support/record_values.h"

namespace tamur::test {
namespace {

using testing::ElementsAre;

constexpr std::string_view kFirst = "1.5 2.5 3.5";
constexpr std::string_view kSecond = "-4.5 5.5 6.5";
constexpr std::string_view kThird = "7.5 8.5 9.5";
constexpr LONG kIdentifier = 4711;

ElementLine PointElement(int kind)
{
    return ElementLine(kind, kIdentifier).Points({kFirst}).Labels({"A", "B"});
}

ElementLine LineElement(int kind)
{
    return ElementLine(kind, kIdentifier).Points({kFirst, kSecond}).Labels({"A", "B"});
}

ElementLine PolygonElement(int kind)
{
    return ElementLine(kind, kIdentifier).Points({kFirst, kSecond, kThird}).Labels({"A", "B"});
}

template <class Element>
void ExpectHead(const Element& element)
{
    EXPECT_EQ(element.identifier, kIdentifier);
    if constexpr (requires { element.ElemLabels; }) {
        EXPECT_THAT(TextsOf(element.ElemLabels), ElementsAre("A", "B"));
    }
}

void ExpectPoint(const TMR3DPnt& point)
{
    EXPECT_THAT(Coordinates(point), ElementsAre(1.5, 2.5, 3.5));
}

void ExpectLine(const TMR3DLine& line)
{
    EXPECT_THAT(Coordinates(line), ElementsAre(1.5, 2.5, 3.5, -4.5, 5.5, 6.5));
}

void ExpectPolygon(const TMR3DPlanarElement& polygon)
{
    EXPECT_EQ(polygon.nbPoints, 3);
    EXPECT_THAT(Coordinates(polygon), ElementsAre(1.5, 2.5, 3.5, -4.5, 5.5, 6.5, 7.5, 8.5, 9.5));
}

TEST(ElementKinds, Node)
{
    const auto reader = ImportedElements({PointElement(1).Columns("63")});
    const auto node = Nodes(*reader).At(0);
    ExpectHead(*node);
    ExpectPoint(node->Geometrie);
    EXPECT_EQ(node->blocage, 63);
}

TEST(ElementKinds, Surface)
{
    const auto reader = Imported(ModelText()
                                     .Section("#Materiaux", {"C25 1 2 3 4 5", "C30 6 7 8 9 10"})
                                     .Elements({PolygonElement(3).Columns("11 2 2 4 15 16 0.17 "
                                                                          "18.5 -19.5")}));
    const auto surface = Surfaciques(*reader).At(0);
    ExpectHead(*surface);
    ExpectPolygon(surface->Surface);
    EXPECT_EQ(surface->GroupNumber, 11);
    EXPECT_EQ(Utf8(surface->ElementType), "Plaque");
    EXPECT_EQ(Utf8(surface->SurfaciqueMaterial.MaterialName), "C30");
    EXPECT_EQ(surface->SurfaciqueMaterial.E, 6.0);
    EXPECT_EQ(surface->SurfaciqueMaterial.nu, 7.0);
    EXPECT_EQ(surface->SurfaciqueMaterial.d, 8.0);
    EXPECT_EQ(surface->SurfaciqueMaterial.alpha, 9.0);
    EXPECT_EQ(surface->SurfaciqueMaterial.amortissement, 10.0);
    EXPECT_EQ(surface->MeshType, surfMeshType_sans);
    EXPECT_EQ(surface->NbXMesh, 15);
    EXPECT_EQ(surface->NbYMesh, 16);
    EXPECT_EQ(surface->Thickness, 0.17);
    EXPECT_EQ(surface->PenteX, 18.5);
    EXPECT_EQ(surface->PenteY, -19.5);
}

template <class Support>
void ExpectStiffnessesAndDampings(const Support& support)
{
    EXPECT_THAT(support.Raideurs, ElementsAre(1.25, 2.25, 3.25, 4.25, 5.25, 6.25));
    EXPECT_THAT(support.Amortissements, ElementsAre(7.25, 8.25, 9.25, 10.25, 11.25, 12.25));
}

constexpr const char* kStiffnessesAndDampings =
    " 1.25 2.25 3.25 4.25 5.25 6.25 7.25 8.25 9.25 10.25 11.25 12.25 ";

TEST(ElementKinds, PointSupport)
{
    const auto reader = ImportedElements(
        {PointElement(4).Columns("11 2 13 -14" + std::string(kStiffnessesAndDampings) + "0.5")});
    const auto support = AppuisPonctuels(*reader).At(0);
    ExpectHead(*support);
    ExpectPoint(support->Geometrie);
    ExpectStiffnessesAndDampings(*support);
    EXPECT_EQ(support->GroupNumber, 11);
    EXPECT_EQ(Utf8(support->ElementType), "Appui ponctuel élastique");
    EXPECT_EQ(support->NdOri, 13);
    EXPECT_EQ(support->Angle, -14.0);
    EXPECT_EQ(support->Surface, 0.5);
}

TEST(ElementKinds, LineSupport)
{
    const auto reader = ImportedElements(
        {LineElement(10).Columns("11 2 13 370" + std::string(kStiffnessesAndDampings) + "0.5")});
    const auto support = AppuisLineaires(*reader).At(0);
    ExpectHead(*support);
    ExpectLine(support->Geometrie);
    ExpectStiffnessesAndDampings(*support);
    EXPECT_EQ(support->GroupNumber, 11);
    EXPECT_EQ(Utf8(support->ElementType), "Appui linéaire élastique");
    EXPECT_EQ(support->Angle, 370.0);
    EXPECT_EQ(support->Surface, 0.5);
    EXPECT_EQ(support->Repere, APP_P_REP_GLOBAL);
}

TEST(ElementKinds, SurfaceSupport)
{
    const auto reader = ImportedElements(
        {PolygonElement(11).Columns("11 2" + std::string(kStiffnessesAndDampings))});
    const auto support = AppuisSurfaciques(*reader).At(0);
    ExpectHead(*support);
    ExpectPolygon(support->Geometrie);
    ExpectStiffnessesAndDampings(*support);
    EXPECT_EQ(support->GroupNumber, 11);
    EXPECT_EQ(Utf8(support->ElementType), "Appui surfacique élastique");
}

TEST(ElementKinds, PointLoad)
{
    const auto reader = ImportedElements({PointElement(5).Columns("11 2 13 14 15 16 17 18")});
    const auto load = ChargesPonctuelles(*reader).At(0);
    ExpectHead(*load);
    ExpectPoint(load->Geometrie);
    EXPECT_EQ(load->NumCas, 11);
    EXPECT_EQ(load->Repere, TMR_FORCE_LOCAL);
    EXPECT_THAT((std::vector{load->Fx, load->Fy, load->Fz, load->Mx, load->My, load->Mz}),
                ElementsAre(13, 14, 15, 16, 17, 18));
}

TEST(ElementKinds, LineLoad)
{
    const auto reader = ImportedElements({LineElement(6).Columns("11 3 13 14 15 16 17 18 19 20")});
    const auto load = ChargesLineaires(*reader).At(0);
    ExpectHead(*load);
    ExpectLine(load->Geometrie);
    EXPECT_EQ(load->NumCas, 11);
    EXPECT_EQ(load->Repere, TMR_FORCE_PROJETE);
    EXPECT_THAT((std::vector{load->intensityDebut, load->intensityFin, load->Fx, load->Fy, load->Fz,
                             load->Mx, load->My, load->Mz}),
                ElementsAre(13, 14, 15, 16, 17, 18, 19, 20));
}

TEST(ElementKinds, SurfaceLoad)
{
    const auto reader = ImportedElements({PolygonElement(7).Columns("11 1 13 14 15 16 17 18")});
    const auto load = ChargesSurfaciques(*reader).At(0);
    ExpectHead(*load);
    ExpectPolygon(load->Geometrie);
    EXPECT_EQ(load->NumCas, 11);
    EXPECT_EQ(load->Repere, TMR_FORCE_GLOBAL);
    EXPECT_THAT((std::vector{load->intensiteI, load->intensiteJ, load->intensiteK, load->Fx,
                             load->Fy, load->Fz}),
                ElementsAre(13, 14, 15, 16, 17, 18));
}

TEST(ElementKinds, SelfWeightLoad)
{
    const auto reader =
        Imported(ModelText()
                     .Section("#Cas", {"11 G 1 G 0"})
                     .Elements({ElementLine(8, kIdentifier).Columns("11 12.5 13.5 14.5 15 16")}));
    const auto load = ChargesPoidsPropre(*reader).At(0);
    ExpectHead(*load);
    EXPECT_EQ(load->NumCas, 11);
    EXPECT_EQ(load->Repere, 0);
    EXPECT_THAT((std::vector{load->dX, load->dY, load->dZ}), ElementsAre(12.5, 13.5, 14.5));
    EXPECT_EQ(load->ElemGrp, 15);
    EXPECT_EQ(load->NumGrp, 16);
}

TEST(ElementKinds, ThermalLoad)
{
    const auto reader =
        Imported(ModelText()
                     .Section("#Cas", {"11 G 1 G 0"})
                     .Elements({PointElement(13).Columns("11 12.5 13.5 14.5 15 16")}));
    const auto load = ChargesThermiques(*reader).At(0);
    ExpectHead(*load);
    EXPECT_EQ(load->NumCas, 11);
    EXPECT_EQ(load->Repere, 0);
    EXPECT_THAT((std::vector{load->DeltaT, load->Gy, load->Gz}), ElementsAre(12.5, 13.5, 14.5));
    EXPECT_EQ(load->ElemGrp, 15);
    EXPECT_EQ(load->NumGrp, 16);
}

TEST(ElementKinds, Mass)
{
    const auto reader = ImportedElements({PointElement(9).Columns("11 12 13 14 15 16")});
    const auto mass = Masses(*reader).At(0);
    ExpectHead(*mass);
    ExpectPoint(mass->Geometrie);
    EXPECT_THAT((std::vector{mass->Mx, mass->My, mass->Mz, mass->Ix, mass->Iy, mass->Iz}),
                ElementsAre(11, 12, 13, 14, 15, 16));
    EXPECT_EQ(Utf8(mass->ElementType), "");
    EXPECT_EQ(mass->GroupNumber, 0);
    EXPECT_EQ(mass->NumCas, 0);
    EXPECT_EQ(mass->Repere, 0);
}

TEST(ElementKinds, Displacement)
{
    const auto reader = ImportedElements({PointElement(12).Columns("11 12 13 14 15 16 17")});
    const auto displacement = Deplacements(*reader).At(0);
    ExpectHead(*displacement);
    ExpectPoint(displacement->Geometrie);
    EXPECT_EQ(displacement->GroupNumber, 11);
    EXPECT_THAT((std::vector{displacement->dX, displacement->dY, displacement->dZ, displacement->Rx,
                             displacement->Ry, displacement->Rz}),
                ElementsAre(12, 13, 14, 15, 16, 17));
}

TEST(ElementKinds, SurfacicSection)
{
    const auto reader = ImportedElements({LineElement(15).Columns("11")});
    const auto section = SurfacicSections(*reader).At(0);
    ExpectHead(*section);
    ExpectLine(section->Geometrie);
    EXPECT_EQ(section->Couche, 11);
}

TEST(ElementKinds, InnerLine)
{
    const auto reader = ImportedElements({LineElement(16).Columns("11")});
    const auto line = LinesInterieur(*reader).At(0);
    EXPECT_EQ(line->lIdentifier, kIdentifier);
    EXPECT_THAT(TextsOf(line->ElemLabels), ElementsAre("A", "B"));
    ExpectLine(line->Geometrie);
    EXPECT_EQ(line->iMaillage, 11);
}

TEST(ElementKinds, Opening)
{
    const auto reader = ImportedElements({PolygonElement(17).Columns("11 12")});
    const auto opening = Ouvertures(*reader).At(0);
    ExpectHead(*opening);
    ExpectPolygon(opening->Surface);
    EXPECT_EQ(opening->NbXMesh, 11);
    EXPECT_EQ(opening->NbYMesh, 12);
}

TEST(ElementKinds, Cable)
{
    const auto reader = ImportedElements({LineElement(21).Columns("11 12 13 14")});
    const auto cable = Cables(*reader).At(0);
    ExpectHead(*cable);
    ExpectLine(cable->Geometrie);
    EXPECT_EQ(cable->GroupNumber, 11);
    EXPECT_EQ(cable->NumCas, 13);
    EXPECT_EQ(cable->Repere, 14);
}

TEST(ElementKinds, ConstructionLine)
{
    const auto reader = ImportedElements({LineElement(22).Columns("11 12 13 14.5 15 16.5")});
    const auto line = Lines(*reader).At(0);
    ExpectHead(*line);
    ExpectLine(line->Geometrie);
    EXPECT_EQ(line->GroupNumber, 11);
    EXPECT_EQ(Utf8(line->ElementType), "Ligne");
    EXPECT_EQ(line->NrElements, 13);
    EXPECT_EQ(line->SizeElements, 14.5);
    EXPECT_EQ(line->Spacing, 15);
    EXPECT_EQ(line->SpacingFactor, 16.5);
}

}  // namespace
}  // namespace tamur::test
