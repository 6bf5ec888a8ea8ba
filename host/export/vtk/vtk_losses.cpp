#include "host/export/vtk/vtk_losses.h"

#include <tamur/ranges.h>

#include "host/export/drawing_losses.h"

namespace tamur::host {
namespace {

constexpr LossText kSettings = {LossType::kNot,
                                {"settings, modal analysis, and messages of the import",
                                 "paramètres, analyse modale et messages de l'importation"}};
constexpr LossText kNumberOnly = {
    LossType::kNot,
    {"elements have its number, or its place in its table, only",
     "les éléments n'en ont que le numéro, ou la place dans sa table"}};
constexpr LossText kBars = {
    LossType::kPartly,
    {"labels, offset, orientation node, mesh and remarks are not written",
     "étiquettes, excentrement, nœud d'orientation, maillage et remarques ne sont pas écrits"}};
constexpr LossText kLabels = {LossType::kPartly,
                              {"labels are not written", "les étiquettes ne sont pas écrites"}};
constexpr LossText kNodes = {
    LossType::kPartly,
    {"labels and fixity are not written", "étiquettes et blocages ne sont pas écrits"}};
constexpr LossText kSurfaces = {LossType::kPartly,
                                {"labels, mesh and slopes are not written",
                                 "étiquettes, maillage et pentes ne sont pas écrits"}};
constexpr LossText kWalls = {LossType::kPartly,
                             {"only their outline is written: no labels, snow and wind",
                              "seul leur contour est écrit : ni étiquettes, ni neige et vent"}};
constexpr LossText kSupports = {
    LossType::kPartly,
    {"labels, dampings, area and orientation node are not written",
     "étiquettes, amortissements, surface et nœud d'orientation ne sont pas écrits"}};
constexpr LossText kLoads = {LossType::kPartly,
                             {"each is its resultant, in the axes of the model, at its middle",
                              "chacune est sa résultante, dans les axes du modèle, en son milieu"}};
constexpr LossText kLines = {
    LossType::kPartly, {"only their ends are written", "seules leurs extrémités sont écrites"}};

const LossText* LossOfKind(Kind kind)
{
    switch (kind) {
        case Kind::kMaterial:
        case Kind::kSection:
        case Kind::kRelease:
        case Kind::kGroup:
        case Kind::kCase: return &kNumberOnly;
        case Kind::kCombination:
        case Kind::kEnvelope:
        case Kind::kSeismicCase:
        case Kind::kSelfWeight:
        case Kind::kThermalLoad: return &kNoPlace;
        case Kind::kNode: return &kNodes;
        case Kind::kBar: return &kBars;
        case Kind::kSurface: return &kSurfaces;
        case Kind::kOpening: return &kLabels;
        case Kind::kMass: return &kLabels;
        case Kind::kWall: return &kWalls;
        case Kind::kPointSupport:
        case Kind::kLineSupport:
        case Kind::kSurfaceSupport: return &kSupports;
        case Kind::kLineLoad:
        case Kind::kSurfaceLoad: return &kLoads;
        case Kind::kInnerLine:
        case Kind::kCable:
        case Kind::kSurfaceSection:
        case Kind::kConstructionLine: return &kLines;
        default: return nullptr;
    }
}

}  // namespace

void AddVtkLosses(const Source& source, ExportReport& report)
{
    report.losses.Add(Kind::kNone, kSettings);
    ForEachTable(source.reader, [&](const auto& table) {
        const Kind kind = KindOfTable(table.Name());
        const auto taken =
            static_cast<std::size_t>(table.Size()) - source.selection.LeavesOut(kind);
        if (const LossText* loss = LossOfKind(kind)) report.losses.Add(kind, *loss, taken);
    });
}

}  // namespace tamur::host
