// Everything that was read from model files. Plain data: no file, no host interface.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/bar_tables.h"
#include "model/case_table.h"
#include "model/combination_table.h"
#include "model/elements.h"
#include "model/group_table.h"
#include "model/loads.h"
#include "model/table.h"

namespace tamur {

// The arena of the element tables also has the strings and arrays of every record below, and the
// labels of the bars.
struct Model : ElementTables {
    std::string version;            // of the file, as written; at most 255 bytes
    std::int32_t servicePack = -1;  // "#SP"; -1 when the file has none
    Settings settings;

    std::shared_ptr<BarTables> barTables = std::make_shared<BarTables>();
    bool hasDefaultMaterial = false;  // the table holds only the import's own material
    bool hasDefaultSection = false;
    GroupTable groups{arena};

    CaseTable cases;
    CombinationTable combinations{arena};
    std::int32_t skippedCombinations = 0;  // of the last import
    Table<Envelope> envelopes{arena};
    Table<SeismicCase> seismicCases{arena};
    Modes modes;

    Table<ImportMessage> messages{arena};
};

}  // namespace tamur
