// The bars and what they are made of.
#pragma once

#include "model/arena.h"
#include "model/elements.h"
#include "model/properties.h"
#include "model/table.h"

namespace tamur {

// Lives as long as the reader or an accessor of bars, whichever is longer: such an accessor has
// its own copy of the bars by sharing in this, and nothing that is here ever changes once read.
// Labels are lent by the reader and end with it: here is only where they are.
struct BarTables {
    Arena arena;

    // Elements refer to these by their place from 1 in file order.
    Table<Material> materials{arena};
    Generation<Section> sections{arena};
    Table<Release> releases{arena};

    Table<Bar> bars{arena};
};

}  // namespace tamur
