// One model file for a command.
#pragma once

#include <tamur/component.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

#include "host/findings/findings.h"
#include "host/record_lines.h"
#include "input.h"

namespace tamur::tool {

// A file could not be imported; what() says which and why.
class ImportRefused : public std::runtime_error {
 public:
    ImportRefused(const Input& input, const host::Finding& why);
    using std::runtime_error::runtime_error;
};

struct Imported {
    std::unique_ptr<Component> component;  // what serves the reader; null: the one built in
    ComPtr<ITAMURStructureReader> reader;
    std::string version;            // as written, UTF-8
    std::int32_t servicePack = -1;  // -1 when the file says none
    host::RecordLines lines;        // only with findings
};

// The model of that file, read by the component that is built in, or by the one at that path. What
// is wrong with the file is added to `findings`, if given; without, it takes less time. Throws
// ImportRefused; ComponentError when there is no component; std::runtime_error when a part of the
// file cannot be read.
[[nodiscard]] Imported Import(const std::string& componentPath, const Input& input,
                              host::Findings& findings);
[[nodiscard]] Imported Import(const std::string& componentPath, const Input& input);

}  // namespace tamur::tool
