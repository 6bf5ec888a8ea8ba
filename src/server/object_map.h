// The classes that hosts can create.
#pragma once

#include "com/module.h"

namespace tamur {

// In the order of registration; the other classes of the type library come from the reader only.
extern com::ObjectMapEntry theObjectMap[];

}  // namespace tamur
