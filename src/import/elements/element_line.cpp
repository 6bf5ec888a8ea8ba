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

// Kind 1
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Node& node)
{
    std::int32_t fixity = 0;
    tokens >> fixity;
    node.fixity = static_cast<std::uint8_t>(fixity);
}

// Kind 3
static void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile& file,
                        Surface& surface)
{
    std::int32_t type = 0, material = 0, meshType = 0;
    tokens >> surface.group >> type >> material >> meshType >> surface.meshX >> surface.meshY >>
        surface.thickness >> surface.slopeX >> surface.slopeY;
    surface.type = SurfaceTypeOf(type);
    surface.material = ResolveMaterial(material, model, file);
    surface.meshType = MeshTypeOf(meshType);
    if (surface.type == kPlaneStrain) surface.thickness = 1.0;
}

// Kind 4
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, PointSupport& support)
{
    std::int32_t condition = 0;
    tokens >> support.group >> condition >> support.orientationNode >> support.angle >>
        support.stiffness >> support.damping >> support.area;
    support.condition = ConditionOf(condition);
}

// Kind 5
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, PointLoad& load)
{
    tokens >> load.caseNumber >> load.frame >> load.force >> load.moment;
}

// Kind 6
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, LineLoad& load)
{
    tokens >> load.caseNumber >> load.frame >> load.intensityStart >> load.intensityEnd >>
        load.force >> load.moment;
}

// Kind 7
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, SurfaceLoad& load)
{
    tokens >> load.caseNumber >> load.frame >> load.intensity >> load.force;
}

// Kinds 8 and 13
static void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile&, GroupLoad& load)
{
    tokens >> load.caseNumber >> load.values >> load.elementKind >> load.group;
    const std::int32_t rank = model.groups.RankOf(load.elementKind, load.group);
    if (rank != 0) load.group = rank;
}

// Kind 9
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Mass& mass)
{
    tokens >> mass.mass >> mass.inertia;
}

// Kind 10
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, LineSupport& support)
{
    std::int32_t condition = 0;
    tokens >> support.group >> condition;
    tokens.Skip<std::int32_t>() >> support.angle >> support.stiffness >> support.damping >>
        support.area;
    support.condition = ConditionOf(condition);
}

// Kind 11
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, SurfaceSupport& support)
{
    std::int32_t condition = 0;
    tokens >> support.group >> condition >> support.stiffness >> support.damping;
    support.condition = ConditionOf(condition);
}

// Kind 12
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Displacement& displacement)
{
    tokens >> displacement.group >> displacement.translation >> displacement.rotation;
}

// Kind 15
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, SurfaceSection& section)
{
    tokens >> section.layer;
}

// Kind 16
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, InnerLine& line)
{
    tokens >> line.mesh;
}

// Kind 17
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Opening& opening)
{
    tokens >> opening.meshX >> opening.meshY;
}

// Kind 21
static void ReadColumns(StreamScanner& tokens, Model&, const ModelFile&, Cable& cable)
{
    tokens >> cable.group;
    tokens.Skip<std::int32_t>() >> cable.caseNumber >> cable.frame;
}

// Kind 22
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

    switch (kind) {
        case 1: add(model.nodes); break;
        case 2: add(model.barTables->bars); break;
        case 3: add(model.surfaces); break;
        case 4: add(model.pointSupports); break;
        case 5: add(model.pointLoads); break;
        case 6: add(model.lineLoads); break;
        case 7: add(model.surfaceLoads); break;
        case 8: addGroupLoad(model.selfWeightLoads, CheckSelfWeightCas); break;
        case 9: add(model.masses); break;
        case 10: add(model.lineSupports); break;
        case 11: add(model.surfaceSupports); break;
        case 12: add(model.displacements); break;
        case 13: addGroupLoad(model.thermalLoads, CheckThermalCas); break;
        case 15: add(model.surfaceSections); break;
        case 16: add(model.innerLines); break;
        case 17: add(model.openings); break;
        case 20: add(model.walls); break;
        case 21: add(model.cables); break;
        case 22: add(model.constructionLines); break;
        default: file.Report(Finding::kUnknownKind); break;
    }
    return true;
}

}  // namespace tamur
