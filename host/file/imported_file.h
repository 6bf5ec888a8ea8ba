// Imports a model file, with every difference between the file and the model found.
#pragma once

#include <tamur/component.h>

#include <cstdint>
#include <optional>
#include <string>

#include "host/file/balance.h"
#include "host/findings/findings.h"
#include "host/record_lines.h"

namespace tamur::host {

struct ImportedFile {
    ComPtr<ITAMURStructureReader> reader;  // null when the file was refused
    std::optional<Finding> refusal;        // why; it is among the findings too
    std::optional<Finding> readError;      // why the rest of the file is missing in the model
    std::string version;                   // as written, UTF-8
    std::int32_t servicePack = -1;         // -1 when the file says none
    Balance balance;
    RecordLines lines;
};

// Reads the file once. The component is the one that is linked in; no message box is shown. Throws
// std::bad_alloc.
[[nodiscard]] ImportedFile ImportFile(const std::string& utf8Path, Findings& findings);

// The same without looking at the lines: no balance, no lines of records, a fraction of the time.
[[nodiscard]] ImportedFile ImportFile(const std::string& utf8Path);

}  // namespace tamur::host
