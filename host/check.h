// All that is known about one model file: what the import made of it, and what is wrong with it.
#pragma once

#include <string>

#include "host/file/imported_file.h"
#include "host/findings/findings.h"

namespace tamur::host {

// Imports the file, once, and adds what is found in the file and in its model. Throws
// std::bad_alloc.
[[nodiscard]] ImportedFile CheckFile(const std::string& utf8Path, Findings& findings);

}  // namespace tamur::host
