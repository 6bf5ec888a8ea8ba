// The kinds of elements, the records of each but loads, and the table of each. Fields are in the
// order that packs them best; which column feeds which is said once, where the kinds are read.
#pragma once

#include <cstdint>

#include "TAMURReader.h"
#include "model/arena.h"
#include "model/columns.h"
#include "model/geometry.h"
#include "model/group_load_table.h"
#include "model/labels.h"
#include "model/list.h"
#include "model/loads.h"
#include "model/table.h"

namespace tamur {

// By the number that begins their lines.
enum class ElementKind : std::int32_t {
    kNode = 1,
    kBar = 2,
    kSurface = 3,
    kPointSupport = 4,
    kPointLoad = 5,
    kLineLoad = 6,
    kSurfaceLoad = 7,
    kSelfWeight = 8,
    kMass = 9,
    kLineSupport = 10,
    kSurfaceSupport = 11,
    kDisplacement = 12,
    kThermalLoad = 13,
    // 14, 18 and 19 give no record.
    kSurfaceSection = 15,
    kInnerLine = 16,
    kOpening = 17,
    kWall = 20,
    kCable = 21,
    kConstructionLine = 22,
};

struct Node {
    Point position;
    Labels labels;
    std::uint8_t fixity = 0;
    std::uint32_t identifier = 0;
};

// Remarks of the import about one bar.
struct BarRemarks {
    bool missingSection : 1 = false;
    bool turnedSection : 1 = false;
};

// Refers to its section, release and material records instead of carrying them: 1-based places
// in the tables as they are over all imports, 0 for none.
struct Bar {
    Segment line;
    LabelPlaces labels;
    std::uint8_t type = 0;    // 0 when the code names none
    std::uint8_t offset = 0;  // a TMRFilaireExcentration
    BarRemarks remarks;
    std::uint32_t identifier = 0;
    std::int32_t group = 0;
    std::int32_t orientationNode = 0;
    std::int32_t angle = 0;
    std::int32_t meshStep = 0;
    std::uint32_t material = 0;
    std::uint32_t startSection = 0;
    std::uint32_t endSection = 0;
    std::uint32_t startRelease = 0;
    std::uint32_t endRelease = 0;
};

struct SurfaceColumns {
    double thickness = 0;
    double slopeX = 0;
    double slopeY = 0;
    std::int32_t group = 0;
    std::int32_t meshX = 0;
    std::int32_t meshY = 0;
    std::uint8_t type = 0;
    std::uint8_t meshType = 0;  // a TMRTypeMaillageSurfacique
};

struct Surface {
    Polygon outline;
    Labels labels;
    const SurfaceColumns* columns = &kNoColumns<SurfaceColumns>;
    std::uint32_t identifier = 0;
    std::uint32_t material = 0;  // as a bar's
};

struct Opening {
    Polygon outline;
    Labels labels;
    std::uint32_t identifier = 0;
    std::int32_t meshX = 0;
    std::int32_t meshY = 0;
};

struct WindZone {
    double external = 0;
    double overpressure = 0;
    double depression = 0;
    std::int32_t status = 0;
};

struct WallColumns {
    List<double> spanCoefficients;  // one per corner
    double lengthCoefficient = 0;
    double normalA = 0;
    double normalB = 0;
    double extremeA = 0;
    double extremeB = 0;
    double permeability = 0;
    WindZone zones[4];
    bool snow = false;
    bool accumulation = false;
    bool wind = false;
    std::int32_t spanDirection = 0;
    std::int32_t accumulationMode = 0;
    std::int32_t windType = 0;
};

struct Wall {
    Polygon outline;
    Labels labels;
    const WallColumns* columns = &kNoColumns<WallColumns>;
    std::uint32_t identifier = 0;
};

struct SupportColumns {
    double stiffness[6] = {};
    double damping[6] = {};
    std::int32_t group = 0;
    std::uint8_t condition = 0;  // 0 when the code names none
};

// What the three kinds of supports share.
struct Support {
    Labels labels;
    const SupportColumns* columns = &kNoColumns<SupportColumns>;
    std::uint32_t identifier = 0;
};

struct PointSupport : Support {
    Point position;
    double area = 0;
    std::int32_t angle = 0;
    std::int32_t orientationNode = 0;
};

struct LineSupport : Support {
    Segment line;
    double area = 0;
    std::int32_t angle = 0;
};

struct SurfaceSupport : Support {
    Polygon outline;
};

struct Mass {
    Point position;
    double mass[3] = {};
    double inertia[3] = {};
    Labels labels;
    std::uint32_t identifier = 0;
};

struct Displacement {
    Point position;
    double translation[3] = {};
    double rotation[3] = {};
    std::uint32_t identifier = 0;
    std::int32_t group = 0;
};

struct SurfaceSection {
    Segment line;
    std::uint32_t identifier = 0;
    std::int32_t layer = 0;
};

struct InnerLine {
    Segment line;
    Labels labels;
    std::uint32_t identifier = 0;
    std::int32_t mesh = 0;
};

struct Cable {
    Segment line;
    std::uint32_t identifier = 0;
    std::int32_t group = 0;
    std::int32_t caseNumber = 0;
    std::int32_t frame = 0;
};

struct ConstructionLine {
    Segment line;
    double elementSize = 0;
    double spacingFactor = 0;
    Labels labels;
    std::uint32_t identifier = 0;
    std::int32_t group = 0;
    std::int32_t elementCount = 0;
    std::int32_t spacing = 0;
};

// A table for each kind but bars, which have their own home.
struct ElementTables {
    Arena arena;  // strings and arrays of these records

    Table<Node> nodes{arena};
    Table<Surface> surfaces{arena};
    Table<PointSupport> pointSupports{arena};
    Table<PointLoad> pointLoads{arena};
    Table<LineLoad> lineLoads{arena};
    Table<SurfaceLoad> surfaceLoads{arena};
    GroupLoadTable selfWeightLoads{arena};
    Table<Mass> masses{arena};
    Table<LineSupport> lineSupports{arena};
    Table<SurfaceSupport> surfaceSupports{arena};
    Table<Displacement> displacements{arena};
    GroupLoadTable thermalLoads{arena};
    Table<SurfaceSection> surfaceSections{arena};
    Table<InnerLine> innerLines{arena};
    Table<Opening> openings{arena};
    Table<Wall> walls{arena};
    Table<Cable> cables{arena};
    Table<ConstructionLine> constructionLines{arena};
};

}  // namespace tamur
