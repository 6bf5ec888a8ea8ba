// One line of "#Elements" into one record of one table.
#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Always true: a line that gives no record is dropped.
bool ParseElementLine(Model& model, const ModelFile& file, const Line& line);

}  // namespace tamur
