#include "host/export/vtk/model_parts.h"

#include <tamur/ranges.h>

#include <map>
#include <string>
#include <utility>

#include "host/export/drawing_losses.h"
#include "host/geometry/frames.h"
#include "host/geometry/surface_cutter.h"
#include "host/structure/tolerances.h"

namespace tamur::host {
namespace {

using Ints = std::vector<std::int32_t>;
using Bytes = std::vector<std::uint8_t>;
using Numbers = std::vector<double>;

// A file for each is of use up to here; beyond it all loads are in one part.
constexpr std::size_t kMostCases = 1000;

// Places in tables are counted from 1 in files; 0 is none.
std::int32_t PlaceOf(Index index)
{
    return index == kNone ? 0 : static_cast<std::int32_t>(index + 1);
}

// A part of elements, and the arrays that every part has.
struct Cells {
    Cells(std::string name, const VtkPoints& points)
    {
        part.name = std::move(name);
        part.firstOwnPoint = points.All().size();
    }
    void Add(const Element& element, VtkCell cell, std::initializer_list<std::uint32_t> at)
    {
        part.cells.push_back(cell);
        part.corners.insert(part.corners.end(), at);
        kind.push_back(static_cast<std::uint8_t>(ElementNumberOf(element.kind)));
        identifier.push_back(static_cast<std::uint32_t>(element.identifier));
        rank.push_back(element.rank + 1);
    }

    VtkPart part;
    Bytes& kind = AddArray<std::uint8_t>(part.cellArrays, "Kind");
    std::vector<std::uint32_t>& identifier = AddArray<std::uint32_t>(part.cellArrays, "Identifier");
    std::vector<std::uint32_t>& rank = AddArray<std::uint32_t>(part.cellArrays, "Rank");

    template <class Value>
    std::vector<Value>& Array(std::string_view name, std::size_t components = 1)
    {
        return AddArray<Value>(part.cellArrays, name, components);
    }
    template <class Value>
    std::vector<Value>& PointArray(std::string_view name, std::size_t components = 1)
    {
        return AddArray<Value>(part.pointArrays, name, components);
    }
};

class Parts {
 public:
    Parts(const Source& source, ExportReport& report, VtkPoints& points,
          const std::function<void(VtkPart&&)>& use)
        : structure_(source.structure), source_(source), report_(report), points_(points), use_(use)
    {
    }

    void Make()
    {
        MakeNodes();
        MakeBars();
        MakeSurfaces();
        MakeWalls();
        MakeOpenings();
        MakeLines(structure_.cables, "cables", [this](Cells& cells) {
            return [this, &values = cells.Array<std::int32_t>("LoadCase")](const Element& cable) {
                const auto place = static_cast<std::size_t>(&cable - structure_.cables.data());
                values.push_back(structure_.cableCases[place]);
            };
        });
        MakeLines(structure_.innerLines, "inner lines");
        MakeFreeLines<TMRSurfacicSection>(Kind::kSurfaceSection, "cuts");
        MakeFreeLines<TMRLine>(Kind::kConstructionLine, "construction lines");
        MakeSupports();
        MakePointValues(structure_.masses, "masses", "Mass", "RotationalMass");
        MakePointValues(structure_.displacements, "displacements", "Translation", "Rotation");
        MakeLoads();
    }

 private:
    // Whether it can be drawn; otherwise that is said, unless it was not asked for.
    bool IsIn(const Element& element)
    {
        if (!source_.selection.Takes(element.kind, element.rank)) return false;
        report_.steps.Do();
        if (!element.isUsable) report_.losses.Add(element.kind, kAbsurdCoordinates);
        return element.isUsable;
    }
    std::uint32_t Corner(const Element& element, std::size_t place)
    {
        return points_.Use(structure_.CornersOf(element)[place]);
    }
    void Hand(Cells& cells)
    {
        if (!cells.part.cells.empty()) use_(std::move(cells.part));
    }

    void MakeNodes()
    {
        Cells cells("nodes", points_);
        for (const Element& node : structure_.nodes) {
            if (IsIn(node)) cells.Add(node, VtkCell::kVertex, {Corner(node, 0)});
        }
        Hand(cells);
    }

    void MakeBars()
    {
        Cells cells("bars", points_);
        Ints& group = cells.Array<std::int32_t>("Group");
        Bytes& type = cells.Array<std::uint8_t>("Type");
        Ints& startSection = cells.Array<std::int32_t>("Section");
        Ints& endSection = cells.Array<std::int32_t>("EndSection");
        Ints& material = cells.Array<std::int32_t>("Material");
        Numbers& angle = cells.Array<double>("Angle");
        Bytes& startRelease = cells.Array<std::uint8_t>("StartRelease");
        Bytes& endRelease = cells.Array<std::uint8_t>("EndRelease");
        for (const Bar& bar : structure_.bars) {
            if (!IsIn(bar)) continue;
            cells.Add(bar, VtkCell::kLine, {points_.Use(bar.start), points_.Use(bar.end)});
            group.push_back(bar.group);
            type.push_back(static_cast<std::uint8_t>(bar.type));
            startSection.push_back(PlaceOf(bar.startSection));
            endSection.push_back(PlaceOf(bar.endSection));
            material.push_back(PlaceOf(bar.material));
            angle.push_back(bar.angle);
            startRelease.push_back(bar.releasedAtStart);
            endRelease.push_back(bar.releasedAtEnd);
        }
        Hand(cells);
    }

    // Calls use() for each triangle of a polygon.
    template <class Use>
    void AddTriangles(Cells& cells, const Element& polygon,
                      const std::optional<SurfaceCutter::Cut>& cut, const Use& use)
    {
        if (const LossText* loss = LossOf(cut)) report_.losses.Add(polygon.kind, *loss);
        if (!cut) return;
        // Points that crossings added are nobody else's.
        const std::size_t shared = cut->places.size();
        added_.clear();
        for (std::size_t i = shared; i < cut->triangles.points.size(); ++i) {
            added_.push_back(points_.Add(cut->triangles.points[i]));
        }
        const auto at = [&](std::size_t place) {
            const std::uint32_t corner = cut->triangles.corners[place];
            return corner < shared ? points_.Use(cut->places[corner]) : added_[corner - shared];
        };
        for (std::size_t i = 0; i < cut->triangles.corners.size(); i += 3) {
            cells.Add(polygon, VtkCell::kTriangle, {at(i), at(i + 1), at(i + 2)});
            use();
        }
    }

    void MakeSurfaces()
    {
        Cells cells("surfaces", points_);
        Ints& group = cells.Array<std::int32_t>("Group");
        Bytes& type = cells.Array<std::uint8_t>("Type");
        Ints& material = cells.Array<std::int32_t>("Material");
        Numbers& thickness = cells.Array<double>("Thickness");
        for (Index i = 0; i < structure_.surfaces.size(); ++i) {
            const Surface& surface = structure_.surfaces[i];
            if (!IsIn(surface)) continue;
            AddTriangles(cells, surface, cutter_.Surface(i), [&] {
                group.push_back(surface.group);
                type.push_back(static_cast<std::uint8_t>(surface.type));
                material.push_back(PlaceOf(surface.material));
                thickness.push_back(surface.thickness);
            });
        }
        Hand(cells);
    }

    void MakeWalls()
    {
        Cells cells("walls", points_);
        for (const Surface& wall : structure_.walls) {
            if (IsIn(wall)) AddTriangles(cells, wall, cutter_.Polygon(wall), [] {});
        }
        Hand(cells);
    }

    // Their outlines; `Surface` is the place of the surface that they are cut out of.
    void MakeOpenings()
    {
        Cells cells("openings", points_);
        Ints& of = cells.Array<std::int32_t>("Surface");
        for (const Surface& opening : structure_.openings) {
            if (!IsIn(opening)) continue;
            const std::size_t count = opening.cornerCount;
            for (std::size_t i = 0; i < count; ++i) {
                cells.Add(opening, VtkCell::kLine,
                          {Corner(opening, i), Corner(opening, i + 1 < count ? i + 1 : 0)});
                of.push_back(PlaceOf(opening.surface));
            }
            if (opening.surface == kNone) report_.losses.Add(Kind::kOpening, kOpensNothing);
        }
        Hand(cells);
    }

    void MakeLines(const std::vector<Element>& lines, const char* name)
    {
        MakeLines(lines, name, [](Cells&) { return [](const Element&) {}; });
    }
    template <class MakeArrays>
    void MakeLines(const std::vector<Element>& lines, const char* name,
                   const MakeArrays& makeArrays)
    {
        Cells cells(name, points_);
        const auto add = makeArrays(cells);
        for (const Element& line : lines) {
            if (!IsIn(line)) continue;
            cells.Add(line, VtkCell::kLine, {Corner(line, 0), Corner(line, 1)});
            add(line);
        }
        Hand(cells);
    }

    // Lines that nothing meets: the structure has not their points.
    template <class PublicRecord>
    void MakeFreeLines(Kind kind, const char* name)
    {
        Cells cells(name, points_);
        Element line;
        line.kind = kind;
        for (const auto& record : Records<PublicRecord>(source_.reader)) {
            const TMR3DPnt &from = record->Geometrie.start, &to = record->Geometrie.end;
            const Point start = {from.x, from.y, from.z}, end = {to.x, to.y, to.z};
            line.identifier = static_cast<std::uint32_t>(record->identifier);
            line.isUsable = IsSensible(start) && IsSensible(end);
            if (IsIn(line)) {
                const std::uint32_t first = points_.Add(start);
                cells.Add(line, VtkCell::kLine, {first, points_.Add(end)});
            }
            ++line.rank;
        }
        Hand(cells);
    }

    void MakeSupports()
    {
        static constexpr std::pair<Kind, const char*> kKinds[] = {
            {Kind::kPointSupport, "point supports"},
            {Kind::kLineSupport, "line supports"},
            {Kind::kSurfaceSupport, "surface supports"},
        };
        for (const auto& [kind, name] : kKinds) {
            Cells cells(name, points_);
            Ints& group = cells.Array<std::int32_t>("Group");
            Bytes& condition = cells.Array<std::uint8_t>("Condition");
            Numbers& angle = cells.Array<double>("Angle");
            Numbers& stiffness = cells.Array<double>("Stiffness", 6);
            for (const Support& support : structure_.supports) {
                if (support.kind != kind || !IsIn(support)) continue;
                const auto add = [&] {
                    group.push_back(support.group);
                    condition.push_back(static_cast<std::uint8_t>(support.condition));
                    angle.push_back(support.angle);
                    stiffness.insert(stiffness.end(), support.stiffness.begin(),
                                     support.stiffness.end());
                };
                AddSupport(cells, support, add);
            }
            Hand(cells);
        }
    }

    template <class Use>
    void AddSupport(Cells& cells, const Support& support, const Use& use)
    {
        if (support.kind == Kind::kSurfaceSupport) {
            return AddTriangles(cells, support, cutter_.Polygon(support), use);
        }
        if (support.kind == Kind::kPointSupport) {
            cells.Add(support, VtkCell::kVertex, {Corner(support, 0)});
        } else {
            cells.Add(support, VtkCell::kLine, {Corner(support, 0), Corner(support, 1)});
        }
        use();
    }

    // Six values in a point: three along the axes, three about them.
    void MakePointValues(const std::vector<Load>& loads, const char* name, const char* along,
                         const char* about)
    {
        Cells cells(name, points_);
        Numbers& first = cells.PointArray<double>(along, 3);
        Numbers& second = cells.PointArray<double>(about, 3);
        for (const Load& load : loads) {
            if (!IsIn(load)) continue;
            const Index corner = structure_.CornersOf(load)[0];
            cells.Add(load, VtkCell::kVertex, {points_.Add(structure_.points[corner])});
            first.insert(first.end(), load.values.begin(), load.values.begin() + 3);
            second.insert(second.end(), load.values.begin() + 3, load.values.end());
        }
        Hand(cells);
    }

    void MakeLoads()
    {
        std::map<int, std::vector<const Load*>> cases;
        for (const Load& load : structure_.loads) cases[load.loadCase].push_back(&load);
        if (cases.size() > kMostCases) {
            std::vector<const Load*> all;
            for (const Load& load : structure_.loads) all.push_back(&load);
            return MakeLoadsOf("loads", all);
        }
        for (const auto& [number, loads] : cases) {
            std::string name = "loads of case " + std::to_string(number);
            const auto found = source_.cases.byNumber.find(number);
            if (found != source_.cases.byNumber.end()) {
                name += " " + source_.cases.cases[found->second].title;
            }
            MakeLoadsOf(std::move(name), loads);
        }
    }

    void MakeLoadsOf(std::string name, const std::vector<const Load*>& loads)
    {
        Cells cells(std::move(name), points_);
        Ints& loadCase = cells.Array<std::int32_t>("LoadCase");
        Ints& frame = cells.Array<std::int32_t>("Frame");
        Numbers& size = cells.Array<double>("Size");
        Numbers& force = cells.PointArray<double>("Force", 3);
        Numbers& moment = cells.PointArray<double>("Moment", 3);
        for (const Load* load : loads) {
            if (!IsIn(*load)) continue;
            const auto [place, axes] = SpotOf(*load);
            cells.Add(*load, VtkCell::kVertex, {points_.Add(place)});
            loadCase.push_back(load->loadCase);
            frame.push_back(load->frame);
            size.push_back(load->size);
            const auto& v = load->values;
            const double factor = load->intensity * load->size;
            const Point f = axes.ToGlobal({v[0], v[1], v[2]}) * factor;
            const Point m = axes.ToGlobal({v[3], v[4], v[5]}) * factor;
            force.insert(force.end(), {f.x, f.y, f.z});
            moment.insert(moment.end(), {m.x, m.y, m.z});
        }
        Hand(cells);
    }

    // Where the resultant of a load is, and in which frame.
    std::pair<Point, Frame> SpotOf(const Load& load)
    {
        GetOutline(structure_, load, outline_);
        if (outline_.empty()) return {};
        std::optional<Frame> local;
        Point place = outline_[0];
        if (load.kind == Kind::kLineLoad) {
            const Segment line = structure_.SegmentOf(load);
            local = FrameOfAxis(line);
            place = line.At(0.5);
        } else if (load.kind == Kind::kSurfaceLoad) {
            local = FrameOfPolygon(outline_);
            place = Polygon(outline_).Centroid();
            // Of hardly any area it may be anywhere.
            if (!IsSensible(place)) place = outline_[0];
        } else if (load.frame == TMR_FORCE_LOCAL) {
            report_.losses.Add(load.kind, kLocalAsGlobal);
        }
        return {place, FrameOfLoad(load.frame, local)};
    }

    const Structure& structure_;
    const Source& source_;
    ExportReport& report_;
    VtkPoints& points_;
    const std::function<void(VtkPart&&)>& use_;

    SurfaceCutter cutter_ = SurfaceCutter(structure_);
    std::vector<Point> outline_;
    std::vector<std::uint32_t> added_;  // points of crossings
};

}  // namespace

void ForEachPart(const Source& source, ExportReport& report, VtkPoints& points,
                 const std::function<void(VtkPart&&)>& use)
{
    Parts(source, report, points, use).Make();
}

}  // namespace tamur::host
