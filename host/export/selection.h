// Which records of a model an export takes.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "host/kinds.h"
#include "host/structure/load_cases.h"
#include "host/structure/structure.h"
#include "host/told_error.h"

namespace tamur::host {

// What was asked for is not in the model.
class NotInModel : public ToldError {
 public:
    using ToldError::ToldError;
};

struct Wanted {
    std::vector<int> cases;           // numbers; none: all
    std::vector<std::string> groups;  // titles, or "bars:3"; none: all

    [[nodiscard]] bool IsAll() const { return cases.empty() && groups.empty(); }
};

class Selection {
 public:
    // Everything.
    Selection() = default;
    // Of the groups their bars, surfaces and supports; what is on these (nodes, masses, loads, ...)
    // and openings in them; nothing else. Of the cases their loads; of combinations and envelopes
    // the loads of the cases that they are made of. Throws NotInModel.
    Selection(const Structure& structure, const LoadCases& cases, const Wanted& wanted);

    [[nodiscard]] bool Takes(Kind kind, std::size_t rank) const
    {
        const auto& left = left_[static_cast<std::size_t>(kind)];
        return rank >= left.size() || !left[rank];
    }
    // Whether nothing was chosen.
    [[nodiscard]] bool IsAll() const { return isAll_; }
    // How many of a kind it leaves out.
    [[nodiscard]] std::size_t LeavesOut(Kind kind) const;

 private:
    void TakeGroups(const Structure& structure, const std::vector<std::string>& groups);
    void TakeCases(const Structure& structure, const LoadCases& cases,
                   const std::vector<int>& numbers);
    template <class Elements, class IsTaken>
    void LeaveOut(const Elements& elements, IsTaken isTaken);
    void Drop(Kind kind, std::size_t rank);

    bool isAll_ = true;
    // By kind, which ranks are left out; what is beyond the end is taken.
    std::array<std::vector<bool>, kKindCount> left_;
};

}  // namespace tamur::host
