// Loads and their cases.
#include <algorithm>
#include <map>
#include <unordered_set>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

bool TakesLoads(CaseType type)
{
    return type == CaseType::kStatic || type == CaseType::kSelfWeight || type == CaseType::kThermal;
}

// The loads of each case that takes none, and the one with the smallest identifier.
struct Lost {
    std::size_t count = 0;
    About first;
};

void Look(const LoadCases& cases, std::map<int, Lost>& lost, int number, const About& load)
{
    const auto place = cases.byNumber.find(number);
    if (place != cases.byNumber.end() && TakesLoads(cases.cases[place->second].type)) return;
    Lost& entry = lost[number];
    const auto order = [](const About& about) { return std::pair(about.identifier, about.kind); };
    if (entry.count++ == 0 || order(load) < order(entry.first)) entry.first = load;
}

std::unordered_set<int> CasesWithLoads(const Structure& structure)
{
    std::unordered_set<int> loaded;
    for (const Load& load : structure.loads) loaded.insert(load.loadCase);
    for (const GroupLoad& load : structure.groupLoads) loaded.insert(load.loadCase);
    for (const int number : structure.cableCases) loaded.insert(number);
    return loaded;
}

void CheckAtPoint(const Structure& structure, const std::vector<Load>& list, Report& report)
{
    for (const Load& load : list) {
        if (!load.isUsable || !structure.membersAt[structure.CornersOf(load)[0]].empty()) continue;
        report.Add(Code::kLoadOffStructure, load);
    }
}

template <class Values>
bool IsNothing(const Values& values)
{
    return std::all_of(values.begin(), values.end(), [](double value) { return value == 0; });
}

// Of each type the cases that no record of theirs makes.
void CheckMade(const LoadCases& cases, CaseType type, const std::vector<Combined>& made, Code code,
               Report& report)
{
    std::unordered_set<int> full;
    for (const Combined& combined : made) {
        const bool isZero = !combined.factors.empty() &&
                            std::all_of(combined.factors.begin(), combined.factors.end(),
                                        [](double factor) { return factor == 0; });
        if (!combined.cases.empty() && !isZero) full.insert(combined.number);
    }
    for (Index rank = 0; rank < cases.cases.size(); ++rank) {
        const LoadCase& loadCase = cases.cases[rank];
        if (loadCase.type != type || full.contains(loadCase.number)) continue;
        report.Add(code, {Kind::kCase, rank, loadCase.number});
    }
}

}  // namespace

void CheckLoadPlaces(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    if (!structure.isComplete) return;
    for (std::size_t i = 0; i < structure.loads.size(); ++i) {
        const Load& load = structure.loads[i];
        const double share = structure.carried[i];
        if (!load.isUsable || share == 1) continue;
        if (share == 0) {
            report.Add(Code::kLoadOffStructure, load);
        } else {
            report.Add(Code::kLoadPartlyOff, load,
                       [share] { return Values{Number(std::floor(share * 100))}; });
        }
    }
    CheckAtPoint(structure, structure.masses, report);
    CheckAtPoint(structure, structure.displacements, report);
}

void CheckCasesOfLoads(const Model& model, Report& report)
{
    std::map<int, Lost> lost;
    for (const Load& load : model.structure.loads) Look(model.cases, lost, load.loadCase, load);
    for (const GroupLoad& load : model.structure.groupLoads) {
        Look(model.cases, lost, load.loadCase, {load.kind, load.rank, load.identifier});
    }
    for (const auto& [number, loads] : lost) {
        if (report.IsLostCase(number)) continue;
        const bool isThere = model.cases.byNumber.contains(number);
        const Code code = isThere ? Code::kLoadInOtherCase : Code::kLoadInUnknownCase;
        report.Add(code, loads.first, [&, of = number, count = loads.count] {
            return Values{std::to_string(of), std::to_string(count)};
        });
    }
}

void CheckLoadColumns(const Model& model, Report& report)
{
    for (const Load& load : model.structure.loads) {
        if (IsNothing(load.values)) report.Add(Code::kLoadWithoutDirection, load);
        if (load.frame >= 1 && load.frame <= 3) continue;
        report.Add(Code::kUnknownFrame, load, [&] { return Values{std::to_string(load.frame)}; });
    }
    for (const GroupLoad& load : model.structure.groupLoads) {
        if (!IsNothing(load.values)) continue;
        report.Add(Code::kLoadWithoutDirection, {load.kind, load.rank, load.identifier});
    }
}

void CheckEmptyCases(const Model& model, Report& report)
{
    const std::unordered_set<int> loaded = CasesWithLoads(model.structure);
    for (Index rank = 0; rank < model.cases.cases.size(); ++rank) {
        const LoadCase& loadCase = model.cases.cases[rank];
        if (!TakesLoads(loadCase.type) || loaded.contains(loadCase.number)) continue;
        report.Add(Code::kCaseWithoutLoads, {Kind::kCase, rank, loadCase.number});
    }
}

void CheckCombinations(const Model& model, Report& report)
{
    const LoadCases& cases = model.cases;
    CheckMade(cases, CaseType::kCombination, cases.combinations, Code::kCombinationOfNothing,
              report);
    CheckMade(cases, CaseType::kEnvelope, cases.envelopes, Code::kEnvelopeOfNothing, report);
}

}  // namespace tamur::host
