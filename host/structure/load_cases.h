// Load cases and what they are made of.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "host/structure/structure.h"

namespace tamur::host {

enum class CaseType : std::uint8_t {
    kStatic = 1,
    kCombination = 2,
    kModal = 3,
    kSeismic = 4,
    kEnvelope = 9,
    kSelfWeight = 12,
    kThermal = 13,
};

struct LoadCase {
    int number = 0;
    CaseType type = CaseType::kStatic;
    std::string title;
};

// A combination, or an envelope: then the factors are missing.
struct Combined {
    int number = 0;
    std::vector<int> cases;
    std::vector<double> factors;
};

struct LoadCases {
    std::vector<LoadCase> cases;
    std::vector<Combined> combinations, envelopes;
    std::map<int, Index> byNumber;  // the first case of each number
};

// Throws ComponentError.
[[nodiscard]] LoadCases ReadLoadCases(ITAMURStructureReader& reader);

}  // namespace tamur::host
