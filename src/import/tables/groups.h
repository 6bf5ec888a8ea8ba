#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Reads the groups of "#Groupes" into the restarted table. Always true.
bool ReadGroups(Model& model, ModelFile& file);

}  // namespace tamur
