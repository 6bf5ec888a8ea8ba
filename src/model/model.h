// Everything that was read from model files. Plain data: no file, no host interface.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/arena.h"
#include "model/bar_tables.h"
#include "model/case_table.h"
#include "model/combination_table.h"
#include "model/elements.h"
#include "model/group_load_table.h"
#include "model/group_table.h"
#include "model/loads.h"
#include "model/table.h"

namespace tamur {

struct Model {
    // Strings and arrays of every record below, and the labels of the bars.
    Arena arena;

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

    Table<Node> nodes{arena};
    Table<Surface> surfaces{arena};
    Table<Opening> openings{arena};
    Table<Wall> walls{arena};
    Table<PointSupport> pointSupports{arena};
    Table<LineSupport> lineSupports{arena};
    Table<SurfaceSupport> surfaceSupports{arena};
    Table<Mass> masses{arena};
    Table<Displacement> displacements{arena};
    Table<SurfaceSection> surfaceSections{arena};
    Table<InnerLine> innerLines{arena};
    Table<Cable> cables{arena};
    Table<ConstructionLine> constructionLines{arena};

    Table<PointLoad> pointLoads{arena};
    Table<LineLoad> lineLoads{arena};
    Table<SurfaceLoad> surfaceLoads{arena};
    GroupLoadTable selfWeightLoads{arena};
    GroupLoadTable thermalLoads{arena};

    Table<ImportMessage> messages{arena};
};

}  // namespace tamur
