// The kinds of elements: what stands in the columns of each, and which table it goes to. A kind
// is added here; its record, in the model, says by its members what becomes of points and labels.
#include "import/elements/element_line.h"

#include "import/elements/bar.h"
#include "import/elements/element_reader.h"
#include "import/elements/references.h"
#include "import/elements/wall.h"
#include "import/loads/group_load_cases.h"

namespace tamur {
namespace {

constexpr std::uint8_t kPlaneStrain = 6;

// Codes count from 1; an unknown one means a shell.
std::uint8_t SurfaceTypeOf(std::int32_t code)
{
    constexpr std::uint8_t kShell = 3;
    return code >= 1 && code <= 7 ? static_cast<std::uint8_t>(code) : kShell;
}

std::uint8_t MeshTypeOf(std::int32_t code)
{
    return static_cast<std::uint8_t>(code >= 1 && code <= 4 ? code - 1 : surfMeshType_auto);
}

// Rigid, elastic, stop; 0 for none.
std::uint8_t ConditionOf(std::int32_t code)
{
    return static_cast<std::uint8_t>(code >= 1 && code <= 3 ? code : 0);
}

}  // namespace

// ElementReader finds these by the type of the record; not in the unnamed namespace, where it
// could not.

// kNode
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Node& node)
{
    std::int32_t fixity = 0;
    tokens >> fixity;
    node.fixity = static_cast<std::uint8_t>(fixity);
}

// kSurface
static void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile& file,
                        Surface& surface, SurfaceColumns& columns)
{
    std::int32_t type = 0, material = 0, meshType = 0;
    tokens >> columns.group >> type >> material >> meshType >> columns.meshX >> columns.meshY >>
        columns.thickness >> columns.slopeX >> columns.slopeY;
    columns.type = SurfaceTypeOf(type);
    surface.material = ResolveMaterial(material, model, file);
    columns.meshType = MeshTypeOf(meshType);
    if (columns.type == kPlaneStrain) columns.thickness = 1.0;
}

// kPointSupport
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, PointSupport& support,
                        SupportColumns& columns)
{
    std::int32_t condition = 0;
    tokens >> columns.group >> condition >> support.orientationNode >> support.angle >>
        columns.stiffness >> columns.damping >> support.area;
    columns.condition = ConditionOf(condition);
}

// kPointLoad
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, PointLoad& load)
{
    tokens >> load.caseNumber >> load.frame >> load.force >> load.moment;
}

// kLineLoad
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, LineLoad& load)
{
    tokens >> load.caseNumber >> load.frame >> load.intensityStart >> load.intensityEnd >>
        load.force >> load.moment;
}

// kSurfaceLoad
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, SurfaceLoad&,
                        SurfaceLoadColumns& columns)
{
    tokens >> columns.caseNumber >> columns.frame >> columns.intensity >> columns.force;
}

// kSelfWeight and kThermalLoad
static void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile&, GroupLoad& load)
{
    tokens >> load.caseNumber >> load.values >> load.elementKind >> load.group;
    const std::int32_t rank = model.groups.RankOf(load.elementKind, load.group);
    if (rank != 0) load.group = rank;
}

// kMass
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Mass& mass)
{
    tokens >> mass.mass >> mass.inertia;
}

// kLineSupport
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, LineSupport& support,
                        SupportColumns& columns)
{
    std::int32_t condition = 0;
    tokens >> columns.group >> condition;
    tokens.Skip<std::int32_t>() >> support.angle >> columns.stiffness >> columns.damping >>
        support.area;
    columns.condition = ConditionOf(condition);
}

// kSurfaceSupport
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, SurfaceSupport&,
                        SupportColumns& columns)
{
    std::int32_t condition = 0;
    tokens >> columns.group >> condition >> columns.stiffness >> columns.damping;
    columns.condition = ConditionOf(condition);
}

// kDisplacement
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Displacement& displacement)
{
    tokens >> displacement.group >> displacement.translation >> displacement.rotation;
}

// kSurfaceSection
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, SurfaceSection& section)
{
    tokens >> section.layer;
}

// kInnerLine
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, InnerLine& line)
{
    tokens >> line.mesh;
}

// kOpening
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Opening& opening)
{
    tokens >> opening.meshX >> opening.meshY;
}

// kCable
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Cable& cable)
{
    tokens >> cable.group;
    tokens.Skip<std::int32_t>() >> cable.caseNumber >> cable.frame;
}

// kConstructionLine
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, ConstructionLine& line)
{
    tokens >> line.group;
    tokens.Skip<std::int32_t>() >> line.elementCount >> line.elementSize >> line.spacing >>
        line.spacingFactor;
}

bool ParseElementLine(Model& model, const ModelFile& file, const Line& line)
{
    StreamScanner tokens(line.text, line.end);
    std::int32_t kind = 0;
    tokens >> kind;
    ElementReader reader(tokens, line, model, file);

    const auto add = [&](auto& table) {
        if (reader.Read(table.Prepare())) table.Commit();
    };
    const auto addGroupLoad = [&](GroupLoadTable& table, auto checkCas) {
        GroupLoad load;
        if (!reader.Read(load)) return;
        table.Append(load);
        checkCas(model, file, load.caseNumber);
    };

    switch (ElementKind{kind}) {
        case ElementKind::kNode: add(model.nodes); break;
        case ElementKind::kBar: add(model.barTables->bars); break;
        case ElementKind::kSurface: add(model.surfaces); break;
        case ElementKind::kPointSupport: add(model.pointSupports); break;
        case ElementKind::kPointLoad: add(model.pointLoads); break;
        case ElementKind::kLineLoad: add(model.lineLoads); break;
        case ElementKind::kSurfaceLoad: add(model.surfaceLoads); break;
        case ElementKind::kSelfWeight:
            addGroupLoad(model.selfWeightLoads, CheckSelfWeightCas);
            break;
        case ElementKind::kMass: add(model.masses); break;
        case ElementKind::kLineSupport: add(model.lineSupports); break;
        case ElementKind::kSurfaceSupport: add(model.surfaceSupports); break;
        case ElementKind::kDisplacement: add(model.displacements); break;
        case ElementKind::kThermalLoad: addGroupLoad(model.thermalLoads, CheckThermalCas); break;
        case ElementKind::kSurfaceSection: add(model.surfaceSections); break;
        case ElementKind::kInnerLine: add(model.innerLines); break;
        case ElementKind::kOpening: add(model.openings); break;
        case ElementKind::kWall: add(model.walls); break;
        case ElementKind::kCable: add(model.cables); break;
        case ElementKind::kConstructionLine: add(model.constructionLines); break;
        default: file.Report(Finding::kUnknownKind); break;
    }
    return true;
}

}  // namespace tamur
