// All that is known about one model file: what the import made of it, and what is wrong with it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/file/imported_file.h"
#include "host/findings/findings.h"
#include "host/structure/structure.h"
#include "host/sums/sums.h"

namespace tamur::host {

struct Checked {
    ImportedFile imported;
    // Of the model; nothing when the file was refused.
    std::optional<Sums> sums;
    std::vector<std::string> sections;  // names, by the places that the sums have
};

// Imports the file, once, and adds what is found in the file and in its model. The structure of the
// model goes to `kept`, if wanted. Throws std::bad_alloc.
[[nodiscard]] Checked CheckFile(const std::string& utf8Path, Findings& findings,
                                Structure* kept = nullptr);

}  // namespace tamur::host
