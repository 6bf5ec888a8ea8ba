// What `tamur info` says of a model.
#pragma once

#include <tamur/component.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "../input.h"
#include "../messages.h"
#include "host/findings/findings.h"
#include "host/sums/sums.h"

namespace tamur::tool {

struct BoundingBox {
    static constexpr double kInfinity = std::numeric_limits<double>::infinity();
    TMR3DPnt low = {kInfinity, kInfinity, kInfinity};
    TMR3DPnt high = {-kInfinity, -kInfinity, -kInfinity};

    [[nodiscard]] bool IsEmpty() const { return low.x > high.x; }
};

struct TableCount {
    const char* table;      // as the contract has it
    const char* plainName;  // in English
    LONG count;
};

struct ModelSummary {
    std::string file;  // as the user wrote it; UTF-8
    std::string version;
    std::int32_t servicePack = -1;  // -1 when the file says none
    TMRStructureData settings = {};
    BoundingBox box;  // of all but loads
    std::vector<TableCount> counts;
    int skippedCombinations = 0;
    MessageList messages;
    std::array<std::size_t, 3> findings = {};  // errors, warnings, notes
    host::Sums sums;
    std::vector<std::string> sections;  // names, by the places that the sums have
};

inline constexpr host::Severity kSeverities[] = {host::Severity::kError, host::Severity::kWarning,
                                                 host::Severity::kNote};

// Of the model as the component at that path has it, or the one that is built in.
[[nodiscard]] ModelSummary Summarize(const std::string& componentPath, const Input& input,
                                     host::Language language);

}  // namespace tamur::tool
