// Small models that together reach every section, every kind of line and every branch.
#pragma once

#include <string>
#include <vector>

namespace tamur::test {

struct Seed {
    std::string name;
    std::string text;
};

[[nodiscard]] std::vector<Seed> Seeds();

}  // namespace tamur::test
