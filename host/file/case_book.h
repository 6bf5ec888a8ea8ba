// The load cases of a file as the import sees them: which are there, which became disabled and why,
// and the loads that a case takes along.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/file/line_walk.h"
#include "host/findings/findings.h"

namespace tamur::host {

class CaseBook {
 public:
    void AddCase(std::int32_t number, std::int32_t type, std::uint32_t line);

    [[nodiscard]] bool Has(std::int32_t number) const { return states_.contains(number); }

    // Of the first case of that number; 0 when there is none.
    [[nodiscard]] std::uint32_t LineOf(std::int32_t number) const;

    // Disables the case of a combination that was skipped; says which of its cases was to blame.
    [[nodiscard]] Finding SkipCombination(std::int32_t number, const std::vector<Reference>& cases);
    // Why the parameters of a combination have no case.
    [[nodiscard]] Finding CombinationOfNoCase(std::int32_t number) const;

    // A self-weight or thermal load. When it is refused, its case is disabled, and loads that were
    // read before go too: those are added as findings of the same cause.
    void AddLoad(Kind kind, std::int32_t number, std::uint32_t line, std::int64_t identifier);
    [[nodiscard]] Finding RefuseLoad(Kind kind, std::int32_t number, std::uint32_t line,
                                     Findings& findings);

    // The lines of what is left, in the order of the tables, and why the others went.
    struct Kept {
        std::vector<std::uint32_t> lines;
        std::map<Code, std::uint64_t> dropped;
    };
    [[nodiscard]] Kept KeptCases() const;
    [[nodiscard]] Kept KeptLoads(Kind kind) const;

 private:
    struct Case {
        std::int32_t number;
        std::uint32_t line;
    };
    // Of all cases of one number.
    struct State {
        std::int32_t type = 0;  // of the first
        std::uint32_t line = 0;
        std::optional<Code> disabled;
        std::int32_t needed = 0;  // the case for which a combination was skipped,
        std::int32_t root = 0;    // and the one that is missing in the end
    };
    struct Load {
        std::uint32_t line;
        std::int64_t identifier;
        std::optional<Code> removed;
    };
    // The ranks of the loads of one case that are not removed: from `first` on.
    struct Ranks {
        std::vector<std::uint32_t> all;
        std::size_t first = 0;
    };
    struct Loads {
        std::vector<Load> all;
        std::map<std::int32_t, Ranks> byCase;
    };

    [[nodiscard]] Loads& Of(Kind kind) { return kind == Kind::kThermalLoad ? thermal_ : weight_; }
    [[nodiscard]] const Loads& Of(Kind kind) const
    {
        return kind == Kind::kThermalLoad ? thermal_ : weight_;
    }
    [[nodiscard]] Finding WhyRefused(Kind kind, std::int32_t number, std::uint32_t line) const;
    [[nodiscard]] std::string ChainFrom(std::int32_t number) const;
    static void Remove(Kind kind, Load& load, const Finding& why, Findings& findings);

    std::vector<Case> cases_;
    std::map<std::int32_t, State> states_;
    std::map<std::int32_t, Finding> loadCauses_;  // of cases that a load disabled
    Loads weight_;
    Loads thermal_;
};

}  // namespace tamur::host
