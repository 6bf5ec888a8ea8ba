// A model as tables: one for each table of the contract with the published names of its fields,
// one for each list that its records have, and one of the model as a whole.
#pragma once

#include "host/export/tables/table_writer.h"
#include "host/export/target.h"

namespace tamur::host {

void WriteModelTables(const Source& source, Steps& steps, TableWriter& writer);

// The first of them: "Model", with settings, numbers of records, sums and findings.
void WriteModelSheet(const Source& source, TableWriter& writer);

}  // namespace tamur::host
