// A model with everything that is known about it, as bytes: what the page of a view holds.
#pragma once

#include <tamur/ranges.h>

#include <string>

#include "host/file/imported_file.h"
#include "host/findings/findings.h"
#include "host/structure/structure.h"

namespace tamur::host::view {

struct ViewedModel {
    std::string name;  // of the file, for people; UTF-8
    const ImportedFile& file;
    const Structure& structure;
    const Findings& findings;
};

// All tables of the contract in its order, with all their fields and the line of each record, then
// "StructureGlobalData", "Modes", "Messages", "Findings", "FindingsNotHeld" and "File". Bars and
// surfaces say by their places which materials, sections and releases they have, openings in which
// surface they are. What it looks like is in docs/view.md. Throws ComponentError and
// std::bad_alloc.
[[nodiscard]] std::string PackModel(const ViewedModel& model);

}  // namespace tamur::host::view
