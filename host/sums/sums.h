// What an engineer adds up before believing a model. What the columns mean is assumed in
// docs/conventions.md.
#pragma once

#include <array>
#include <map>
#include <vector>

#include "host/structure/load_cases.h"
#include "host/structure/structure.h"

namespace tamur::host {

// Fx, Fy, Fz, Mx, My, Mz, as the columns have them: moments of forces about a point are not in it.
using Forces = std::array<double, 6>;

struct CaseSum {
    int number = 0;
    std::string title;              // empty when there is no such case
    std::map<int, Forces> byFrame;  // 1 global, 2 local, 3 projected; others as written
    std::size_t loads = 0;
};

struct Sums {
    std::vector<CaseSum> cases;  // of point, line and surface loads, in ascending order
    Forces masses = {};          // Mx, My, Mz, Ix, Iy, Iz
    // By the sections at the start and the end (places in Structure::sections).
    std::map<std::pair<Index, Index>, double> lengths;
    std::map<double, double> areas;  // by thickness, less the openings in them
};

[[nodiscard]] Sums SumsOf(const Structure& structure, const LoadCases& cases);

}  // namespace tamur::host
