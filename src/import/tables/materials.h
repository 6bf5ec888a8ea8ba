#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Adds the materials of "#Materiaux" to the table, and the default material when the table is
// still empty then. Always true.
bool ReadMaterials(Model& model, ModelFile& file);

// Makes the product's concrete the only material of the empty table.
void AddDefaultMaterial(Model& model);

}  // namespace tamur
