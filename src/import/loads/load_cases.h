#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Reads the load cases of "#Cas" into the emptied table and, when one of them has parameters,
// "#TAB_PARAM_CAS". Always true.
bool ReadLoadCaseTables(Model& model, ModelFile& file);

}  // namespace tamur
