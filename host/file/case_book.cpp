#include "host/file/case_book.h"

#include <algorithm>

namespace tamur::host {
namespace {

constexpr std::int32_t kStatic = 1;

Kind OtherOf(Kind kind)
{
    return kind == Kind::kThermalLoad ? Kind::kSelfWeight : Kind::kThermalLoad;
}

}  // namespace

void CaseBook::AddCase(std::int32_t number, std::int32_t type, std::uint32_t line)
{
    cases_.push_back({number, line});
    const auto [state, isNew] = states_.try_emplace(number);
    if (!isNew) return;
    state->second.type = type;
    state->second.line = line;
}

std::uint32_t CaseBook::LineOf(std::int32_t number) const
{
    const auto state = states_.find(number);
    return state != states_.end() ? state->second.line : 0;
}

// "12 → 10 → 99", cut after some.
std::string CaseBook::ChainFrom(std::int32_t number) const
{
    constexpr int kMost = 5;
    std::string chain = std::to_string(number);
    auto state = states_.find(number);
    for (int i = 0; state != states_.end() && state->second.disabled; ++i) {
        if (i == kMost) return chain + " → …";
        chain += " → " + std::to_string(state->second.needed);
        state = states_.find(state->second.needed);
    }
    return chain;
}

Finding CaseBook::SkipCombination(std::int32_t number, const std::vector<Reference>& cases)
{
    const auto isMissing = [this](const Reference& term) {
        const auto state = states_.find(term.number);
        return state == states_.end() || state->second.disabled;
    };
    const auto missing = std::find_if(cases.begin(), cases.end(), isMissing);
    State& own = states_[number];
    own.needed = missing != cases.end() ? missing->number : number;
    const auto needed = states_.find(own.needed);
    own.root = needed != states_.end() ? needed->second.root : own.needed;
    own.disabled = Code::kCombinationOfMissingCase;
    return CombinationOfNoCase(number);
}

Finding CaseBook::CombinationOfNoCase(std::int32_t number) const
{
    const auto state = states_.find(number);
    if (state == states_.end()) {
        return {.code = Code::kCombinationOfNoCase, .values = {std::to_string(number)}};
    }
    return {.code = Code::kCombinationOfMissingCase,
            .values = {std::to_string(state->second.root), ChainFrom(number)}};
}

void CaseBook::AddLoad(Kind kind, std::int32_t number, std::uint32_t line, std::int64_t identifier)
{
    Loads& loads = Of(kind);
    loads.byCase[number].all.push_back(static_cast<std::uint32_t>(loads.all.size()));
    loads.all.push_back({line, identifier, {}});
}

// The newest load of that kind is the refused one.
Finding CaseBook::WhyRefused(Kind kind, std::int32_t number, std::uint32_t line) const
{
    const std::string name = std::to_string(number);
    const auto state = states_.find(number);
    if (state == states_.end()) return {.code = Code::kLoadOfNoCase, .values = {name}};
    const auto before = loadCauses_.find(number);
    if (before != loadCauses_.end()) return before->second;
    const auto linesFrom = [&](Kind first) -> std::vector<std::string> {
        const Loads& loads = Of(first);
        const Ranks& ranks = loads.byCase.at(number);
        const Load& load = loads.all[ranks.all[ranks.first]];
        return {name, std::to_string(load.line), std::to_string(line)};
    };
    if (state->second.type == kStatic) {
        const Ranks& ranks = Of(kind).byCase.at(number);
        if (ranks.all.size() - ranks.first > 1) {
            return {.code = Code::kLoadsDiffer, .values = linesFrom(kind)};
        }
        if (Of(OtherOf(kind)).byCase.contains(number)) {
            return {.code = Code::kLoadsMixed, .values = linesFrom(OtherOf(kind))};
        }
    }
    return {.code = Code::kLoadOfOtherCase, .values = {name}};
}

void CaseBook::Remove(Kind kind, Load& load, const Finding& why, Findings& findings)
{
    load.removed = why.code;
    if (!findings.Holds(why.code)) return findings.Count(why.code);
    Finding finding = why;
    finding.place.line = load.line;
    finding.kind = kind;
    finding.identifier = load.identifier;
    findings.Add(std::move(finding));
}

Finding CaseBook::RefuseLoad(Kind kind, std::int32_t number, std::uint32_t line, Findings& findings)
{
    Finding why = WhyRefused(kind, number, line);
    Loads& own = Of(kind);
    const auto ofCase = own.byCase.find(number);
    Ranks& ranks = ofCase->second;
    own.all[ranks.all.back()].removed = why.code;
    for (std::size_t i = ranks.first; i + 1 < ranks.all.size(); ++i) {
        Remove(kind, own.all[ranks.all[i]], why, findings);
    }
    own.byCase.erase(ofCase);
    // Of the other kind only the first goes.
    Loads& others = Of(OtherOf(kind));
    if (const auto other = others.byCase.find(number); other != others.byCase.end()) {
        Ranks& left = other->second;
        Remove(OtherOf(kind), others.all[left.all[left.first++]], why, findings);
        if (left.first == left.all.size()) others.byCase.erase(other);
    }
    const auto state = states_.find(number);
    if (state != states_.end() && !state->second.disabled) {
        state->second.disabled = why.code;
        loadCauses_[number] = why;
    }
    return why;
}

CaseBook::Kept CaseBook::KeptCases() const
{
    Kept kept;
    for (const Case& each : cases_) {
        const State& state = states_.at(each.number);
        if (state.disabled) {
            ++kept.dropped[*state.disabled];
        } else {
            kept.lines.push_back(each.line);
        }
    }
    return kept;
}

CaseBook::Kept CaseBook::KeptLoads(Kind kind) const
{
    Kept kept;
    for (const Load& load : Of(kind).all) {
        if (load.removed) {
            ++kept.dropped[*load.removed];
        } else {
            kept.lines.push_back(load.line);
        }
    }
    return kept;
}

}  // namespace tamur::host
