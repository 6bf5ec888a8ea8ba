// `tamur view` as a function: a model as one page that any browser shows, without a network.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/view/packed_model.h"

namespace tamur::host::view {

// HTML in UTF-8.
[[nodiscard]] std::string PageOf(const ViewedModel& model);

struct PageOfAFile {
    std::string html;                // empty when there is none:
    std::optional<Finding> trouble;  // the file was refused, or could not be read to its end
};

// The same of a file, which is imported and checked. `name` is what the page calls it; of each code
// the findings that are held are shown.
[[nodiscard]] PageOfAFile PageOfFile(const std::string& utf8Path, const std::string& name,
                                     Findings& findings);

// The page around those bytes.
[[nodiscard]] std::string PageAround(std::string_view packed);

// How every page begins.
[[nodiscard]] std::string_view PageBeginning();

}  // namespace tamur::host::view
