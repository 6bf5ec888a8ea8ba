// The tables of a reader as the lists of a structure, with merged points.
#pragma once

#include "host/structure/structure.h"

namespace tamur::host {

[[nodiscard]] Structure ReadModel(ITAMURStructureReader& reader);

}  // namespace tamur::host
