#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Adds the releases of "#Attaches" to the table. Always true.
bool ReadReleases(Model& model, ModelFile& file);

}  // namespace tamur
