#include "sums_text.h"

#include <iomanip>

#include "host/findings/plain_text.h"
#include "section_names.h"

namespace tamur::tool {
namespace {

constexpr std::string_view kForceNames[] = {"Fx", "Fy", "Fz", "Mx", "My", "Mz"};
constexpr std::string_view kMassNames[] = {"Mx", "My", "Mz", "Ix", "Iy", "Iz"};

struct SumsWords {
    std::string_view loadCase, global, local, projected, otherFrame, masses, lengths, areas;
};

const SumsWords& SumsWordsIn(host::Language language)
{
    static constexpr SumsWords kEnglish = {"load case",
                                           "global",
                                           "local",
                                           "projected",
                                           "frame",
                                           "masses",
                                           "length of bars (m)",
                                           "area of surfaces (m²), by thickness (m)"};
    static constexpr SumsWords kFrench = {"cas",
                                          "global",
                                          "local",
                                          "projeté",
                                          "repère",
                                          "masses",
                                          "longueur des filaires (m)",
                                          "aire des surfaciques (m²), par épaisseur (m)"};
    return language == host::Language::kFrench ? kFrench : kEnglish;
}

// Those that are not 0: "Fz -20000".
void WriteValues(const host::Forces& values, const std::string_view (&names)[6], std::ostream& out)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] != 0) out << "  " << names[i] << ' ' << values[i];
    }
    out << '\n';
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

}  // namespace

void WriteSums(const host::Sums& sums, const std::vector<std::string>& sections,
               host::Language language, std::ostream& out)
{
    const SumsWords& words = SumsWordsIn(language);
    const auto before = out.precision(8);
    for (const host::CaseSum& loadCase : sums.cases) {
        for (const auto& [frame, forces] : loadCase.byFrame) {
            out << words.loadCase << ' ' << loadCase.number << ' '
                << host::PlainText(loadCase.title) << " (" << FrameName(frame, words) << "):";
            WriteValues(forces, kForceNames, out);
        }
    }
    if (sums.masses != host::Forces{}) {
        out << words.masses << ':';
        WriteValues(sums.masses, kMassNames, out);
    }
    if (!sums.lengths.empty()) out << words.lengths << '\n';
    for (const auto& [ends, length] : sums.lengths) {
        out << "  " << host::PlainText(SectionNames(ends, sections)) << ": " << length << '\n';
    }
    if (!sums.areas.empty()) out << words.areas << '\n';
    for (const auto& [thickness, area] : sums.areas) {
        out << "  " << thickness << ": " << area << '\n';
    }
    out.precision(before);
}

}  // namespace tamur::tool
