#include "text.h"

#include <TAMURReader.h>

#include <algorithm>
#include <map>
#include <span>

#include "host/findings/plain_text.h"
#include "section_names.h"

namespace tamur::tool {
namespace {

constexpr std::string_view kForceNames[] = {"Fx", "Fy", "Fz", "Mx", "My", "Mz"};

// docs/conventions.md has the reasons.
struct SumsWords {
    std::string_view loads, loadCase, global, local, projected, otherFrame;
    std::string_view ofLoads, ofFrames, masses, lengths, areas, ofAreas, units;
    std::string_view andMore, more, ofMore, of;
    std::string_view massNames[6];
};

const SumsWords& SumsWordsIn(host::Language language)
{
    static constexpr SumsWords kEnglish = {
        "loads by case (N, N·m)",
        "load case",
        "global",
        "local",
        "projected",
        "frame",
        "assumed: line loads are their mean intensity times their length, surface loads their "
        "intensity at the\n  centroid times their area. Without self-weight, temperature, and "
        "moments "
        "of forces about a point.",
        "assumed: local and projected loads are added whole, each kind apart, in their own frames.",
        "masses (unit as in the file)",
        "length of bars from end to end (m), by section",
        "area of surfaces (m²), by thickness (m)",
        "assumed: openings do not overlap, and take their whole area away.",
        "Newtons and metres: nothing is converted, the product writes them.",
        "and ",
        " more",
        " more: ",
        ":",
        {"mass along x", "mass along y", "mass along z", "inertia about x", "inertia about y",
         "inertia about z"}};
    static constexpr SumsWords kFrench = {
        "charges par cas (N, N·m)",
        "cas",
        "global",
        "local",
        "projeté",
        "repère",
        "supposé : une charge linéaire vaut son intensité moyenne fois sa longueur, une charge "
        "surfacique son\n  intensité au centre de gravité fois son aire. Sans poids propre, "
        "température, ni moments des forces par\n  rapport à un point.",
        "supposé : charges locales et projetées sont additionnées entières, à part, dans leurs "
        "propres "
        "repères.",
        "masses (unité du fichier)",
        "longueur des filaires de bout en bout (m), par section",
        "aire des surfaciques (m²), par épaisseur (m)",
        "supposé : les ouvertures ne se recouvrent pas, et enlèvent toute leur aire.",
        "Newtons et mètres : rien n'est converti, le produit les écrit.",
        "et encore ",
        "",
        " : ",
        " :",
        {"masse selon x", "masse selon y", "masse selon z", "inertie autour de x",
         "inertie autour de y", "inertie autour de z"}};
    return language == host::Language::kFrench ? kFrench : kEnglish;
}

// Those that are not 0: "Fz -20000".
void WriteValues(std::span<const double> values, std::span<const std::string_view> names,
                 std::ostream& out)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] != 0) out << "  " << names[i] << ' ' << values[i];
    }
    out << '\n';
}

// Masses in a line and inertias in another.
void WriteMasses(const host::Forces& masses, const SumsWords& words, std::ostream& out)
{
    if (masses == host::Forces{}) return;
    out << words.masses << '\n';
    const std::span<const double> values(masses);
    const std::span<const std::string_view> names(words.massNames);
    for (const std::size_t first : {std::size_t{0}, std::size_t{3}}) {
        const auto part = values.subspan(first, 3);
        const auto isZero = [](double value) { return value == 0; };
        if (std::all_of(part.begin(), part.end(), isZero)) continue;
        WriteValues(part, names.subspan(first, 3), out);
    }
}

std::string FrameName(int frame, const SumsWords& words)
{
    switch (frame) {
        case 1: return std::string(words.global);
        case 2: return std::string(words.local);
        case 3: return std::string(words.projected);
        default: return std::string(words.otherFrame) + ' ' + std::to_string(frame);
    }
}

void WriteCase(const host::CaseSum& loadCase, const SumsWords& words, std::ostream& out)
{
    for (const auto& [frame, forces] : loadCase.byFrame) {
        out << "  " << words.loadCase << ' ' << loadCase.number << ' '
            << host::PlainText(loadCase.title) << " (" << FrameName(frame, words) << ')'
            << words.of;
        WriteValues(forces, kForceNames, out);
    }
}

void WriteCases(const std::vector<host::CaseSum>& cases, const SumsWords& words, std::size_t most,
                std::ostream& out)
{
    if (cases.empty()) return;
    out << words.loads << '\n';
    const std::size_t shown = std::min(cases.size(), most);
    for (std::size_t i = 0; i < shown; ++i) WriteCase(cases[i], words, out);
    if (cases.size() > shown) {
        out << "  " << words.andMore << cases.size() - shown << words.more << '\n';
    }
    out << "  " << words.ofLoads << '\n';
    const auto hasOwnFrames = [](const host::CaseSum& sum) {
        return std::any_of(sum.byFrame.begin(), sum.byFrame.end(),
                           [](const auto& frame) { return frame.first != TMR_FORCE_GLOBAL; });
    };
    if (std::any_of(cases.begin(), cases.end(), hasOwnFrames))
        out << "  " << words.ofFrames << '\n';
}

// In their order; when there are too many, the greatest.
template <class Key, class NameOf>
void WriteSizes(const std::map<Key, double>& sizes, const SumsWords& words, const char* unit,
                std::size_t most, std::ostream& out, NameOf nameOf)
{
    std::vector<std::pair<Key, double>> list(sizes.begin(), sizes.end());
    if (list.size() > most) {
        std::stable_sort(list.begin(), list.end(),
                         [](const auto& a, const auto& b) { return a.second > b.second; });
    }
    double rest = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (i < most) {
            out << "  " << nameOf(list[i].first) << words.of << ' ' << list[i].second << '\n';
        } else {
            rest += list[i].second;
        }
    }
    if (list.size() > most) {
        out << "  " << words.andMore << list.size() - most << words.ofMore << rest << ' ' << unit
            << '\n';
    }
}

}  // namespace

void WriteSums(const host::Sums& sums, const std::vector<std::string>& sections,
               host::Language language, std::size_t most, std::ostream& out)
{
    const SumsWords& words = SumsWordsIn(language);
    const auto before = out.precision(8);
    WriteCases(sums.cases, words, most, out);
    WriteMasses(sums.masses, words, out);
    if (!sums.lengths.empty()) out << words.lengths << '\n';
    WriteSizes(sums.lengths, words, "m", most, out,
               [&](const auto& ends) { return host::PlainText(SectionNames(ends, sections)); });
    if (!sums.areas.empty()) out << words.areas << '\n';
    WriteSizes(sums.areas, words, "m²", most, out, [](double thickness) { return thickness; });
    if (!sums.areas.empty()) out << "  " << words.ofAreas << '\n';
    const bool isAny = !sums.cases.empty() || !sums.lengths.empty() || !sums.areas.empty();
    if (isAny) out << words.units << '\n';
    out.precision(before);
}

}  // namespace tamur::tool
