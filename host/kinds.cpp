#include "host/kinds.h"

#include <array>

namespace tamur::host {
namespace {

struct Row {
    Kind kind;
    int number;
    std::string_view table;
    std::string_view nouns[kLanguageCount];
};

constexpr std::array<Row, kKindCount> kRows = {{
    {Kind::kNone, 0, "", {"", ""}},
    {Kind::kMaterial, 0, "Materials", {"material", "matériau"}},
    {Kind::kSection, 0, "Sections", {"section", "section"}},
    {Kind::kRelease, 0, "Attaches", {"release", "attache"}},
    {Kind::kGroup, 0, "Groupes", {"group", "groupe"}},
    {Kind::kCase, 0, "Cas", {"load case", "cas"}},
    {Kind::kCombination, 0, "Combinaisons", {"combination", "combinaison"}},
    {Kind::kModes, 0, "", {"modal analysis", "analyse modale"}},
    {Kind::kSeismicCase, 0, "ChargesSismiques", {"seismic case", "cas sismique"}},
    {Kind::kEnvelope, 0, "Enveloppes", {"envelope", "enveloppe"}},
    {Kind::kNode, 1, "Nodes", {"node", "nœud"}},
    {Kind::kBar, 2, "Filaires", {"bar", "filaire"}},
    {Kind::kSurface, 3, "Surfaciques", {"surface", "surfacique"}},
    {Kind::kPointSupport, 4, "AppuisPonctuels", {"point support", "appui ponctuel"}},
    {Kind::kPointLoad, 5, "ChargesPonctuelles", {"point load", "charge ponctuelle"}},
    {Kind::kLineLoad, 6, "ChargesLineaires", {"line load", "charge linéaire"}},
    {Kind::kSurfaceLoad, 7, "ChargesSurfaciques", {"surface load", "charge surfacique"}},
    {Kind::kSelfWeight, 8, "ChargesPoidsPropre", {"self-weight load", "poids propre"}},
    {Kind::kMass, 9, "Masses", {"mass", "masse"}},
    {Kind::kLineSupport, 10, "AppuisLineaires", {"line support", "appui linéaire"}},
    {Kind::kSurfaceSupport, 11, "AppuisSurfaciques", {"surface support", "appui surfacique"}},
    {Kind::kDisplacement, 12, "Deplacements", {"imposed displacement", "déplacement imposé"}},
    {Kind::kThermalLoad, 13, "ChargesThermiques", {"thermal load", "effet thermique"}},
    {Kind::kSurfaceSection, 15, "SurfacicSections", {"cut", "coupe"}},
    {Kind::kInnerLine, 16, "LinesInterieur", {"inner line", "ligne intérieure"}},
    {Kind::kOpening, 17, "Ouvertures", {"opening", "ouverture"}},
    {Kind::kWall, 20, "Parois", {"wall", "paroi"}},
    {Kind::kCable, 21, "Cables", {"cable", "câble"}},
    {Kind::kConstructionLine, 22, "Lines", {"construction line", "ligne"}},
}};

constexpr bool AreInOrder()
{
    std::size_t place = 0;
    for (const Row& row : kRows) {
        if (static_cast<std::size_t>(row.kind) != place++) return false;
    }
    return true;
}
static_assert(AreInOrder());

const Row& RowOf(Kind kind)
{
    return kRows[static_cast<std::size_t>(kind)];
}

}  // namespace

std::string_view NounOf(Kind kind, Language language)
{
    return RowOf(kind).nouns[static_cast<int>(language)];
}

std::string_view TableNameOf(Kind kind)
{
    return RowOf(kind).table;
}

Kind KindOfTable(std::string_view name)
{
    if (name.empty()) return Kind::kNone;
    for (const Row& row : kRows) {
        if (row.table == name) return row.kind;
    }
    return Kind::kNone;
}

int ElementNumberOf(Kind kind)
{
    return RowOf(kind).number;
}

Kind KindOfElement(int number)
{
    if (number <= 0) return Kind::kNone;
    for (const Row& row : kRows) {
        if (row.number == number) return row.kind;
    }
    return Kind::kNone;
}

}  // namespace tamur::host
