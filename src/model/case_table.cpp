#include "model/case_table.h"

#include <algorithm>
#include <numeric>

namespace tamur {

namespace {

// Throws std::bad_alloc, where shrink_to_fit would go on with the memory for the throw used up.
template <class T>
void GiveBackSpare(std::vector<T>& values)
{
    std::vector<T>(values).swap(values);
}

}  // namespace

void CaseTable::Clear()
{
    cases_.clear();
    byNumber_.clear();
    runs_.clear();
}

void CaseTable::Finish()
{
    GiveBackSpare(cases_);
    byNumber_.resize(cases_.size());
    std::iota(byNumber_.begin(), byNumber_.end(), 0u);
    std::sort(byNumber_.begin(), byNumber_.end(), [this](std::uint32_t a, std::uint32_t b) {
        return cases_[a].number != cases_[b].number ? cases_[a].number < cases_[b].number : a < b;
    });
    for (std::uint32_t place = 0; place < byNumber_.size(); ++place) {
        const std::int32_t number = cases_[byNumber_[place]].number;
        if (runs_.empty() || runs_.back().number != number) {
            runs_.push_back({number, place, place, place, place});
        }
        runs_.back().end = place + 1;
    }
    GiveBackSpare(runs_);
}

const CaseTable::Run* CaseTable::FindRun(std::int32_t number) const
{
    // Cases are mostly numbered one after the other: then a look is enough.
    const std::int64_t guess = runs_.empty() ? 0 : std::int64_t{number} - runs_.front().number;
    if (guess >= 0 && guess < static_cast<std::int64_t>(runs_.size())) {
        const Run& guessed = runs_[static_cast<std::size_t>(guess)];
        if (guessed.number == number) return &guessed;
    }
    const auto run = std::lower_bound(
        runs_.begin(), runs_.end(), number,
        [](const Run& candidate, std::int32_t wanted) { return candidate.number < wanted; });
    return run != runs_.end() && run->number == number ? &*run : nullptr;
}

std::uint8_t CaseTable::GetCasType(std::int32_t number) const
{
    const Run* const run = FindRun(number);
    return run != nullptr ? cases_[byNumber_[run->begin]].type : case_type::kDisabled;
}

void CaseTable::DisableCas(std::int32_t number)
{
    Run* const run = const_cast<Run*>(FindRun(number));
    if (run == nullptr) return;
    // Cases are only ever disabled together with all others of their number, so the first tells
    // for all that this was done before.
    if (cases_[byNumber_[run->begin]].type == case_type::kDisabled) return;
    for (std::uint32_t place = run->begin; place < run->end; ++place) {
        cases_[byNumber_[place]].type = case_type::kDisabled;
    }
}

LoadCase* CaseTable::FindCarrier(std::int32_t number, std::uint8_t type)
{
    Run* const run = const_cast<Run*>(FindRun(number));
    if (run == nullptr) return nullptr;
    std::uint32_t& next = type == case_type::kSelfWeight ? run->nextSelfWeight : run->nextThermal;
    for (; next < run->end; ++next) {
        LoadCase& candidate = cases_[byNumber_[next]];
        if (candidate.type == case_type::kStatic || candidate.type == type) return &candidate;
    }
    return nullptr;
}

}  // namespace tamur
