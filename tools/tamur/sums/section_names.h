// How bars are called by their sections.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/structure/structure.h"

namespace tamur::tool {

// "IPE300", or "IPE300 - IPE400" where the ends differ; "-" for an end without one.
[[nodiscard]] inline std::string SectionNames(const std::pair<host::Index, host::Index>& ends,
                                              const std::vector<std::string>& names)
{
    const auto nameOf = [&names](host::Index section) {
        return section < names.size() ? names[section] : std::string("-");
    };
    if (ends.first == ends.second) return nameOf(ends.first);
    return nameOf(ends.first) + " - " + nameOf(ends.second);
}

}  // namespace tamur::tool
