#include "words.h"

#include <algorithm>

#include "../setting_words.h"

namespace tamur::tool {
namespace {

constexpr DiffWords kWords[host::kLanguageCount] = {
    {.of = ": ",
     .none = "(none)",
     .values = " values",
     .moved = "moved ",
     .points = " points",
     .distance = "by ",
     .turned = "outline turned: the same corners from another one on",
     .renumbered = " renumbered: ",
     .renamed = " renamed: ",
     .more = " more",
     .moreShown = " more changes: --all shows them",
     .version = "version",
     .settings = "settings",
     .skippedCombinations = "skipped combinations",
     .disabledCombinations = "disabled combinations",
     .message = "message",
     .counted = {" changed", " moved", " added", " removed", " renumbered"}},
    {.of = " : ",
     .none = "(néant)",
     .values = " valeurs",
     .moved = "déplacement ",
     .points = " points",
     .distance = "de ",
     .turned = "contour tourné : les mêmes sommets à partir d'un autre",
     .renumbered = " avec un autre numéro : ",
     .renamed = " avec un autre nom : ",
     .more = " de plus",
     .moreShown = " de plus : --all les montre",
     .version = "version",
     .settings = "réglages",
     .skippedCombinations = "combinaisons ignorées",
     .disabledCombinations = "combinaisons désactivées",
     .message = "message",
     .counted = {" avec modification", " avec déplacement", " en plus", " en moins",
                 " avec un autre numéro"}},
};

struct FieldName {
    std::string_view published;
    std::string_view words[host::kLanguageCount];
};

constexpr FieldName kFieldNames[] = {
    {"Affiche", {"displayed", "affiché"}},
    {"Angle", {"angle", "angle"}},
    {"Connection", {"release", "attache"}},
    {"Couche", {"layer", "couche"}},
    {"ElemGrp", {"kind of group", "genre du groupe"}},
    {"ElementType", {"type", "type"}},
    {"EndConnection", {"release at the end", "attache à l'extrémité"}},
    {"EndSection", {"section at the end", "section à l'extrémité"}},
    {"ErrorMessage", {"remark", "remarque"}},
    {"Excentration", {"offset", "excentrement"}},
    {"FilaireMaterial", {"material", "matériau"}},
    {"GroupNumber", {"group", "groupe"}},
    {"MeshStep", {"mesh step", "pas de maillage"}},
    {"MeshType", {"mesh", "maillage"}},
    {"NumCas", {"load case", "cas"}},
    {"NumGrp", {"group", "groupe"}},
    {"OrientationNode", {"orientation node", "nœud d'orientation"}},
    {"NdOri", {"orientation node", "nœud d'orientation"}},
    {"Raideurs", {"stiffness", "raideur"}},
    {"Amortissements", {"damping", "amortissement"}},
    {"Geometrie", {"position", "position"}},
    {"Repere", {"frame", "repère"}},
    {"Section", {"section", "section"}},
    {"StartConnection", {"release at the start", "attache à l'origine"}},
    {"StartSection", {"section at the start", "section à l'origine"}},
    {"Surface", {"surface", "surface"}},
    {"SurfaciqueMaterial", {"material", "matériau"}},
    {"Thickness", {"thickness", "épaisseur"}},
    {"TypEl", {"number of the type", "numéro du type"}},
    {"TypeElementName", {"type", "type"}},
    {"Titre", {"title", "titre"}},
    {"blocage", {"fixity", "blocage"}},
    {"end", {"end", "fin"}},
    {"endPoint", {"end", "fin"}},
    {"espaceDeTravail", {"working space", "espace de travail"}},
    {"pCases", {"cases", "cas"}},
    {"pCoeff", {"factors", "coefficients"}},
    {"pNumCas", {"cases", "cas"}},
    {"pTabPoints", {"outline", "contour"}},
    {"rigideEnFlexion", {"rigid in bending", "rigide en flexion"}},
    {"start", {"start", "début"}},
    {"startPoint", {"start", "début"}},
    {"tabCoef", {"span coefficient", "coefficient de portée"}},
    {"tabLabels", {"label", "étiquette"}},
    {"tabPoints", {"corner", "sommet"}},
    {"tol3D", {"tolerance", "tolérance"}},
};

// Records within records, of which people name the parts only.
constexpr std::string_view kWholes[] = {"ElemLabels", "Geometrie", "Surface", "epureSec",
                                        "portCoef"};

bool IsWhole(std::string_view name)
{
    return std::find(std::begin(kWholes), std::end(kWholes), name) != std::end(kWholes);
}

std::string WordsOf(std::string_view name, host::Language language)
{
    for (const FieldName& field : kFieldNames) {
        if (field.published == name) {
            return std::string(field.words[static_cast<std::size_t>(language)]);
        }
    }
    return std::string(name);
}

// "[0]" as " 1".
std::string CountedFromOne(std::string_view index)
{
    if (index.empty()) return {};
    return " " + std::to_string(std::stoi(std::string(index.substr(1))) + 1);
}

}  // namespace

const DiffWords& WordsIn(host::Language language)
{
    return kWords[static_cast<std::size_t>(language)];
}

std::string FieldWords(const std::string& field, host::Language language)
{
    std::string words;
    for (std::string_view rest = field; !rest.empty();) {
        const std::string_view part = rest.substr(0, rest.find('.'));
        rest.remove_prefix(std::min(rest.size(), part.size() + 1));
        const std::string_view name = part.substr(0, part.find('['));
        if (!rest.empty() && IsWhole(name)) continue;
        words += (words.empty() ? "" : " ") + WordsOf(name, language) +
                 CountedFromOne(part.substr(name.size()));
    }
    return words;
}

std::string_view ValueWords(std::string_view field, long long number, host::Language language)
{
    if (field == "espaceDeTravail") return WorkSpaceWords(number, language);
    if (field == "rigideEnFlexion" || field == "Affiche") return YesOrNo(number != 0, language);
    return {};
}

}  // namespace tamur::tool
