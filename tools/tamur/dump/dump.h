// What `tamur dump` writes: a model as one JSON object. docs/dump.md describes it.
#pragma once

#include <tamur/component.h>

#include <cstdint>
#include <ostream>
#include <string>

#include "members.h"

namespace tamur::tool {

struct DumpedModel {
    std::string file;  // as the user wrote it; UTF-8
    std::string version;
    std::int32_t servicePack = -1;  // -1 when the file says none
    ITAMURStructureReader& reader;
};

// A member for every table that is wanted, written record by record. Compact, a record is one line;
// pretty, every value is.
void WriteDump(const DumpedModel& model, const Members& wanted, bool isPretty, std::ostream& out);

}  // namespace tamur::tool
