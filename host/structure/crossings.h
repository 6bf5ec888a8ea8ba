// Bars that meet between their ends.
#pragma once

#include <utility>
#include <vector>

#include "host/structure/structure.h"

namespace tamur::host {

struct Crossings {
    std::vector<std::pair<Index, Index>> bars;  // that cross without a common point
    bool isComplete = true;
};

[[nodiscard]] Crossings FindCrossings(const Structure& structure);

}  // namespace tamur::host
