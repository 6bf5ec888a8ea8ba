// The members of a dump, and which of them are wanted.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace tamur::tool {

class Members {
 public:
    static constexpr const char* kSettings = "StructureGlobalData";
    static constexpr const char* kSkipped = "NbCombinaisonsSkipped";
    static constexpr const char* kModes = "Modes";
    static constexpr const char* kMessages = "Messages";

    // Those names; all members when there are none. Throws std::runtime_error for one that is none.
    explicit Members(const std::vector<std::string>& names);

    [[nodiscard]] bool Has(const char* name) const
    {
        return wanted_.empty() || wanted_.count(name) != 0;
    }

 private:
    std::set<std::string> wanted_;  // as the dump has them
};

}  // namespace tamur::tool
