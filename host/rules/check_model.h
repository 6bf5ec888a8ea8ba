// What is wrong, or may be, with the model in a reader.
#pragma once

#include "host/findings/findings.h"
#include "host/record_lines.h"

struct ITAMURStructureReader;

namespace tamur::host {

struct Structure;
struct LoadCases;

// `lines` may be empty; findings are then without a place. Throws ComponentError.
void CheckModel(ITAMURStructureReader& reader, const RecordLines& lines, Findings& findings);

// The same, for those who have read the model already.
void CheckModel(const Structure& structure, const LoadCases& cases, const RecordLines& lines,
                Findings& findings);

}  // namespace tamur::host
