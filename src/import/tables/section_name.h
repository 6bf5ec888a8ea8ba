// Names of T, I and H sections, which carry their dimensions.
#pragma once

#include <string>
#include <string_view>

namespace tamur {

struct SectionName {
    std::string text;
    bool isHShape = false;  // written as an H, named as the I that it is
};

// Rewrites a T, I or H name from the dimensions that are drawn to the dimensions that are named.
// A name of another form, or with one of the first four dimensions negative or missing, stays as
// written.
[[nodiscard]] SectionName NormaliseSectionName(std::string_view name);

}  // namespace tamur
