// What VTK files say less of than the model.
#pragma once

#include "host/export/target.h"

namespace tamur::host {

void AddVtkLosses(const Source& source, ExportReport& report);

}  // namespace tamur::host
