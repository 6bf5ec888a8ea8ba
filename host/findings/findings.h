// The findings of one check, in proportion to their number: of each code the first are kept, all
// are counted.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "host/findings/finding.h"

namespace tamur::host {

// Which codes count. Each entry is a code, "TMR101", or the beginning of some, "TMR1".
struct CodeFilter {
    std::vector<std::string> select;  // empty: all
    std::vector<std::string> ignore;

    [[nodiscard]] bool Takes(Code code) const;
};

class Findings {
 public:
    static constexpr std::size_t kAll = ~std::size_t{0};

    // Of each code the first `kept` are held.
    explicit Findings(std::size_t kept = kAll, CodeFilter filter = {});

    // Counts it, and holds it if it is one of the first.
    void Add(Finding finding);

    // How many were added of it, held or not.
    [[nodiscard]] std::size_t CountOf(Code code) const;
    [[nodiscard]] std::size_t CountOf(Severity severity) const;

    // Whether one more would be held. Where it would not, Count does without its values.
    [[nodiscard]] bool Holds(Code code);
    void Count(Code code);

    // In the order of the file, those without a place first; of one place in the order of adding.
    [[nodiscard]] std::vector<Finding> InFileOrder() const;

    // How often each code was found and is not held.
    [[nodiscard]] std::map<Code, std::size_t> NotHeld() const;

 private:
    struct Tally {
        bool isTaken = true;
        std::size_t count = 0;
    };
    Tally& TallyOf(Code code);

    std::size_t kept_;
    CodeFilter filter_;
    std::vector<Finding> held_;
    std::map<Code, Tally> tallies_;
};

}  // namespace tamur::host
