#include "host/findings/findings.h"

#include <algorithm>

namespace tamur::host {
namespace {

bool IsNamed(const std::vector<std::string>& names, const std::string& id)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return id.starts_with(name); });
}

}  // namespace

bool CodeFilter::Takes(Code code) const
{
    const std::string id = IdOf(code);
    return (select.empty() || IsNamed(select, id)) && !IsNamed(ignore, id);
}

Findings::Findings(std::size_t kept, CodeFilter filter) : kept_(kept), filter_(std::move(filter)) {}

Findings::Tally& Findings::TallyOf(Code code)
{
    const auto [entry, isNew] = tallies_.try_emplace(code);
    if (isNew) entry->second.isTaken = filter_.Takes(code);
    return entry->second;
}

bool Findings::Holds(Code code)
{
    const Tally& tally = TallyOf(code);
    return tally.isTaken && tally.count < kept_;
}

void Findings::Count(Code code)
{
    Tally& tally = TallyOf(code);
    if (tally.isTaken) ++tally.count;
}

void Findings::Add(Finding finding)
{
    const bool isHeld = Holds(finding.code);
    Count(finding.code);
    if (isHeld) held_.push_back(std::move(finding));
}

std::size_t Findings::CountOf(Code code) const
{
    const auto entry = tallies_.find(code);
    return entry != tallies_.end() ? entry->second.count : 0;
}

std::size_t Findings::CountOf(Severity severity) const
{
    std::size_t count = 0;
    for (const auto& [code, tally] : tallies_) {
        if (InfoOf(code).severity == severity) count += tally.count;
    }
    return count;
}

std::vector<Finding> Findings::InFileOrder() const
{
    std::vector<Finding> sorted = held_;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Finding& a, const Finding& b) {
        return a.place.line != b.place.line ? a.place.line < b.place.line
                                            : a.place.column < b.place.column;
    });
    return sorted;
}

std::map<Code, std::size_t> Findings::NotHeld() const
{
    std::map<Code, std::size_t> rest;
    for (const auto& [code, tally] : tallies_) {
        if (tally.count > kept_) rest[code] = tally.count - kept_;
    }
    return rest;
}

}  // namespace tamur::host
