#pragma once

#include "import/file/model_file.h"
#include "import/scan/stream_scanner.h"
#include "model/model.h"

namespace tamur {

// Columns 11 and following of a wall (kind 20), whose points and labels are read.
void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile& file, Wall& wall,
                 WallColumns& columns);

}  // namespace tamur
