#include <tamur/ranges.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "host/export/saf/labels.h"
#include "host/export/saf/lines.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kNoSurfacePolygon = {
    LossType::kNot,
    {"an outline without an area, with coordinates that cannot be meant, or with more corners than "
     "a cell holds",
     "un contour sans aire, aux coordonnées impossibles, ou de plus de points qu'une cellule n'en "
     "contient"}};
constexpr LossText kSlopes = {
    LossType::kPartly,
    {"slopes (PenteX, PenteY) are not written: what they change is not documented",
     "les pentes (PenteX, PenteY) ne sont pas écrites : leur effet n'est pas documenté"}};
constexpr LossText kSurfaceMesh = {LossType::kPartly,
                                   {"meshing is not written", "le maillage n'est pas écrit"}};
constexpr LossText kPlaneStrain = {
    LossType::kPartly,
    {"plane strain and axial symmetry are unknown to the format: Isotropic is written",
     "la déformation plane et l'axisymétrie sont inconnues du format : Isotropic est écrit"}};
constexpr LossText kInNoSurface = {
    LossType::kNot,
    {"it lies in no surface that is written", "elle n'est dans aucun surfacique écrit"}};
constexpr LossText kClimate = {
    LossType::kPartly,
    {"a wall is a panel that spreads loads both ways: snow, wind, and the direction of its span, "
     "whose values are not documented, are not written",
     "une paroi est un panneau qui répartit dans les deux sens : neige, vent et sens de portée, "
     "dont les valeurs ne sont pas documentées, ne sont pas écrits"}};
constexpr LossText kPlane = {LossType::kAssumed,
                             {"a surface lies in the middle of its thickness",
                              "un surfacique est au milieu de son épaisseur"}};

constexpr double kSteep = 1e-6;

const char* TypeOf(Point normal)
{
    if (std::abs(normal.z) < kVertical) return "Wall";
    return std::hypot(normal.x, normal.y) < kSteep ? "Plate" : "Shell";
}

class Surfaces {
 public:
    explicit Surfaces(Model& model) : model_(model), structure_(model.structure)
    {
        model_.surfaces.resize(structure_.surfaces.size());
    }

    void Write()
    {
        FindInnerPoints();
        const auto records = Records<TMRSurfacique>(model_.source.reader);
        for (std::size_t i = 0; i < structure_.surfaces.size(); ++i) {
            const Surface& surface = structure_.surfaces[i];
            if (!model_.Takes(surface)) continue;
            WriteSurface(i, *records.At(static_cast<LONG>(surface.rank)));
            model_.report.steps.Do();
        }
        WriteOpenings();
        WriteInnerLines();
        WriteWalls();
    }

 private:
    // What else is on the surfaces: the receiver's mesh has to meet it.
    void FindInnerPoints()
    {
        std::vector<bool> isOf(structure_.points.size());
        const auto add = [&](const auto& elements) {
            for (const Element& element : elements) {
                if (!model_.Takes(element)) continue;
                for (const Index corner : structure_.CornersOf(element)) {
                    if (corner != kNone) isOf[corner] = true;
                }
            }
        };
        add(structure_.nodes);
        add(structure_.bars);
        add(structure_.surfaces);
        add(structure_.innerLines);
        for (const Support& support : structure_.supports) {
            if (support.kind == Kind::kPointSupport) add(std::span(&support, 1));
        }
        for (const Load& load : structure_.loads) {
            if (load.kind == Kind::kPointLoad) add(std::span(&load, 1));
        }
        innerPoints_.resize(structure_.surfaces.size());
        for (Index point = 0; point < isOf.size(); ++point) {
            if (!isOf[point]) continue;
            for (const Member& member : structure_.membersAt[point]) {
                if (member.kind == Kind::kSurface) innerPoints_[member.index].push_back(point);
            }
        }
    }

    void WriteSurface(std::size_t place, const TMRSurfacique& record)
    {
        const Surface& surface = structure_.surfaces[place];
        const std::vector<Point> corners =
            surface.isUsable ? OutlineOf(structure_, surface) : std::vector<Point>();
        const auto frame = FrameOfPolygon(corners);
        const auto outline = OutlineOfCorners(model_, surface);
        if (!frame || !outline) return model_.Lose(surface, kNoSurfacePolygon);
        const std::string name = NameOfElement(model_, names_, surface, record.ElemLabels, "S");
        model_.surfaces[place] = name;
        CountLosses(surface, record);

        const Index material = surface.material == kNone ? 0 : surface.material;
        Row row;
        row.Text(name).Text(TypeOf(frame->z)).Text(model_.materials[material]).Text("Constant");
        row.Number(surface.thickness * 1000).Text("Centre").Text(outline->nodes);
        row.Text(InnerNodesOf(place)).Text(outline->edges).Number(surface.area);
        row.Text(model_.LayerOf(3, surface.group)).Text("x by vector").Point(frame->x);
        row.Number(0).Number(0).Text("Flat");
        row.Text(ToUtf8(ViewOf(record.ElementType)) == "Membrane" ? "Membrane" : "Isotropic");
        row.Skip().Text(model_.ids.Take(Kind::kSurface, surface.identifier));
        model_.book.Add(model_.layouts.surface, row);
    }

    void CountLosses(const Surface& surface, const TMRSurfacique& record)
    {
        model_.Lose(surface, kPlane);
        if (record.PenteX != 0 || record.PenteY != 0) model_.Lose(surface, kSlopes);
        if (record.NbXMesh != 0 || record.NbYMesh != 0) model_.Lose(surface, kSurfaceMesh);
        const std::string type = ToUtf8(ViewOf(record.ElementType));
        if (type == "D\u00E9f Plane" || type == "Axisym") model_.Lose(surface, kPlaneStrain);
    }

    std::string InnerNodesOf(std::size_t place)
    {
        const auto corners = structure_.CornersOf(structure_.surfaces[place]);
        const std::set<Index> isCorner(corners.begin(), corners.end());
        std::string list;
        for (const Index point : innerPoints_[place]) {
            if (isCorner.contains(point)) continue;
            AddToList(list, model_.PointName(point));
            if (list.size() > Workbook::kLongestText) return "";  // they are nodes all the same
        }
        return list;
    }

    void WriteOpenings()
    {
        Names names;
        const auto records = Records<TMROuverture>(model_.source.reader);
        for (const Surface& opening : structure_.openings) {
            if (!model_.Takes(opening)) continue;
            if (opening.surface == kNone || model_.surfaces[opening.surface].empty()) {
                model_.Lose(opening, kInNoSurface);
                continue;
            }
            const auto outline = OutlineOfCorners(model_, opening);
            if (!outline || !(opening.area > 0)) {
                model_.Lose(opening, kNoSurfacePolygon);
                continue;
            }
            const auto record = records.At(static_cast<LONG>(opening.rank));
            if (record->NbXMesh != 0 || record->NbYMesh != 0) model_.Lose(opening, kSurfaceMesh);
            Row row;
            row.Text(NameOfElement(model_, names, opening, record->ElemLabels, "O"));
            row.Text(model_.surfaces[opening.surface]).Text(outline->nodes).Text(outline->edges);
            row.Number(opening.area).Skip();
            row.Text(model_.ids.Take(Kind::kOpening, opening.identifier));
            model_.book.Add(model_.layouts.opening, row);
        }
    }

    void WriteInnerLines()
    {
        const auto records = Records<TMRLineInterieur>(model_.source.reader);
        for (const Element& line : structure_.innerLines) {
            if (!model_.Takes(line)) continue;
            const auto surface = SurfaceWith(model_, line);
            if (!surface) {
                model_.Lose(line, model_.steps.IsSpent() ? kSearchEnded : kInNoSurface);
                continue;
            }
            const auto record = records.At(static_cast<LONG>(line.rank));
            if (record->iMaillage != 0) model_.Lose(line, kSurfaceMesh);
            AddInnerEdge(model_, line, *surface,
                         NameOfElement(model_, model_.innerEdges, line, record->ElemLabels, "IL"));
        }
    }

    void WriteWalls()
    {
        Names names;
        const auto records = Records<TMRParoi>(model_.source.reader);
        for (const Surface& wall : structure_.walls) {
            if (!model_.Takes(wall)) continue;
            const std::vector<Point> corners =
                wall.isUsable ? OutlineOf(structure_, wall) : std::vector<Point>();
            const auto frame = FrameOfPolygon(corners);
            const auto outline = OutlineOfCorners(model_, wall);
            if (!frame || !outline) {
                model_.Lose(wall, kNoSurfacePolygon);
                continue;
            }
            model_.Lose(wall, kClimate);
            const auto record = records.At(static_cast<LONG>(wall.rank));
            Row row;
            row.Text(NameOfElement(model_, names, wall, record->ElemLabels, "W")).Text("Edges");
            row.Text(outline->nodes).Text(outline->edges).Text("x by vector").Point(frame->x);
            row.Number(0).Text("Two way").Text(model_.ids.Take(Kind::kWall, wall.identifier));
            model_.book.Add(model_.layouts.wall, row);
        }
    }

    Model& model_;
    const Structure& structure_;
    Names names_;
    std::vector<std::vector<Index>> innerPoints_;
};

}  // namespace

void WriteSurfaces(Model& model)
{
    Surfaces(model).Write();
}

}  // namespace tamur::host::saf
