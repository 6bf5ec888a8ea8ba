#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Reads the bar sections of "#Geometries" into the restarted table, and adds the default
// section when no section was ever read. Always true.
bool ReadSectionGeometries(Model& model, ModelFile& file);

// Makes a rectangle of 20 by 30 the only section of the empty table.
void AddDefaultSection(Model& model);

}  // namespace tamur
