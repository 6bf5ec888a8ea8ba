#include "host/export/vtk/model_parts.h"

#include <tamur/ranges.h>

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "host/export/drawing_losses.h"
#include "host/geometry/frames.h"
#include "host/geometry/surface_cutter.h"
#include "host/structure/tolerances.h"

namespace tamur::host {
namespace {

// A file for each is of use up to here; beyond it all loads are in one part.
constexpr std::size_t kMostCases = 1000;

using Vector = std::array<double, 3>;

// Places in tables are counted from 1 in files; 0 is none.
std::int32_t NumberOfPlace(Index index)
{
    return index == kNone ? 0 : static_cast<std::int32_t>(index + 1);
}

template <class Type>
std::uint8_t NumberOf(Type type)
{
    return static_cast<std::uint8_t>(type);
}

// The axes that the forces of a load follow.
Frame AxesOf(const Structure& structure, const Load& load)
{
    if (load.frame != TMR_FORCE_LOCAL || load.kind == Kind::kPointLoad) return {};
    if (load.kind == Kind::kLineLoad) {
        return FrameOfLoad(load.frame, FrameOfAxis(structure.SegmentOf(load)));
    }
    return FrameOfLoad(load.frame, FrameOfPolygon(OutlineOf(structure, load)));
}

// Of all that it acts on, three of its six values; the others turn.
Vector ResultantOf(const Structure& structure, const Load& load, std::size_t first)
{
    const auto& v = load.values;
    const Point local = {v[first], v[first + 1], v[first + 2]};
    const Point sum = AxesOf(structure, load).ToGlobal(local) * (load.intensity * load.size);
    return {sum.x, sum.y, sum.z};
}

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
        MakeCables();
        MakeInnerLines();
        MakeFreeLines<TMRSurfacicSection>(Kind::kSurfaceSection, "cuts");
        MakeFreeLines<TMRLine>(Kind::kConstructionLine, "construction lines");
        MakeSupports();
        MakePointValues(structure_.masses, "masses", "Mass", "RotationalMass");
        MakePointValues(structure_.displacements, "displacements", "Translation", "Rotation");
        MakeLoads();
    }

 private:
    // A part, and the arrays that every part has. `of` gives its elements by their index.
    template <class Of>
    VtkPart Begin(std::string name, const Of& of) const
    {
        VtkPart part;
        part.name = std::move(name);
        part.firstOwnPoint = points_.All().size();
        part.cellArrays = {
            MakeArray("Kind", [of](Index i) { return NumberOf(ElementNumberOf(of(i).kind)); }),
            MakeArray("Identifier",
                      [of](Index i) { return static_cast<std::uint32_t>(of(i).identifier); }),
            MakeArray("Rank", [of](Index i) { return of(i).rank + 1; }),
        };
        return part;
    }
    template <class Elements>
    VtkPart BeginOf(std::string name, const Elements& elements) const
    {
        return Begin(std::move(name),
                     [&elements](Index i) -> const Element& { return elements[i]; });
    }
    void Hand(VtkPart& part)
    {
        if (!part.cells.empty()) use_(std::move(part));
    }

    // Calls use(element, index) for each that can be drawn. What cannot is said, unless it was not
    // asked for.
    template <class Elements, class Use>
    void ForEach(const Elements& elements, const Use& use)
    {
        for (Index i = 0; i < elements.size(); ++i) {
            if (IsIn(elements[i])) use(elements[i], i);
        }
    }
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
    void AddPoint(VtkPart& part, const Element& element, Index index)
    {
        part.Add(index, VtkCell::kVertex, {Corner(element, 0)});
    }
    void AddLine(VtkPart& part, const Element& element, Index index)
    {
        part.Add(index, VtkCell::kLine, {Corner(element, 0), Corner(element, 1)});
    }
    void AddTriangles(VtkPart& part, const Element& polygon, Index index,
                      const std::optional<SurfaceCutter::Cut>& cut)
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
            part.Add(index, VtkCell::kTriangle, {at(i), at(i + 1), at(i + 2)});
        }
    }

    void MakeNodes()
    {
        VtkPart part = BeginOf("nodes", structure_.nodes);
        ForEach(structure_.nodes, [&](const Element& node, Index i) { AddPoint(part, node, i); });
        Hand(part);
    }

    void MakeBars()
    {
        const auto& bars = structure_.bars;
        VtkPart part = BeginOf("bars", bars);
        const auto add = [&](std::string_view name, const auto& get) {
            part.cellArrays.push_back(
                MakeArray(name, [&bars, get](Index i) { return get(bars[i]); }));
        };
        add("Group", [](const Bar& bar) { return bar.group; });
        add("Type", [](const Bar& bar) { return NumberOf(bar.type); });
        add("Section", [](const Bar& bar) { return NumberOfPlace(bar.startSection); });
        add("EndSection", [](const Bar& bar) { return NumberOfPlace(bar.endSection); });
        add("Material", [](const Bar& bar) { return NumberOfPlace(bar.material); });
        add("Angle", [](const Bar& bar) { return bar.angle; });
        add("StartRelease", [](const Bar& bar) { return bar.releasedAtStart; });
        add("EndRelease", [](const Bar& bar) { return bar.releasedAtEnd; });
        ForEach(bars, [&](const Bar& bar, Index i) { AddLine(part, bar, i); });
        Hand(part);
    }

    void MakeSurfaces()
    {
        const auto& surfaces = structure_.surfaces;
        VtkPart part = BeginOf("surfaces", surfaces);
        const auto add = [&](std::string_view name, const auto& get) {
            part.cellArrays.push_back(
                MakeArray(name, [&surfaces, get](Index i) { return get(surfaces[i]); }));
        };
        add("Group", [](const Surface& surface) { return surface.group; });
        add("Type", [](const Surface& surface) { return NumberOf(surface.type); });
        add("Material", [](const Surface& surface) { return NumberOfPlace(surface.material); });
        add("Thickness", [](const Surface& surface) { return surface.thickness; });
        ForEach(surfaces, [&](const Surface& surface, Index i) {
            AddTriangles(part, surface, i, cutter_.Surface(i));
        });
        Hand(part);
    }

    void MakeWalls()
    {
        VtkPart part = BeginOf("walls", structure_.walls);
        ForEach(structure_.walls, [&](const Surface& wall, Index i) {
            AddTriangles(part, wall, i, cutter_.Polygon(wall));
        });
        Hand(part);
    }

    // Their outlines; `Surface` is the place of the surface that they are cut out of.
    void MakeOpenings()
    {
        const auto& openings = structure_.openings;
        VtkPart part = BeginOf("openings", openings);
        part.cellArrays.push_back(MakeArray(
            "Surface", [&openings](Index i) { return NumberOfPlace(openings[i].surface); }));
        ForEach(openings, [&](const Surface& opening, Index index) {
            const std::size_t count = opening.cornerCount;
            for (std::size_t i = 0; i < count; ++i) {
                part.Add(index, VtkCell::kLine,
                         {Corner(opening, i), Corner(opening, i + 1 < count ? i + 1 : 0)});
            }
            if (opening.surface == kNone) report_.losses.Add(Kind::kOpening, kOpensNothing);
        });
        Hand(part);
    }

    void MakeCables()
    {
        VtkPart part = BeginOf("cables", structure_.cables);
        const auto& cases = structure_.cableCases;
        part.cellArrays.push_back(MakeArray("LoadCase", [&cases](Index i) { return cases[i]; }));
        ForEach(structure_.cables, [&](const Element& line, Index i) { AddLine(part, line, i); });
        Hand(part);
    }

    void MakeInnerLines()
    {
        VtkPart part = BeginOf("inner lines", structure_.innerLines);
        ForEach(structure_.innerLines,
                [&](const Element& line, Index i) { AddLine(part, line, i); });
        Hand(part);
    }

    // Lines that nothing meets: the structure has not their points.
    template <class PublicRecord>
    void MakeFreeLines(Kind kind, const char* name)
    {
        const auto lines = std::make_shared<std::vector<Element>>();
        VtkPart part = Begin(name, [lines](Index i) -> const Element& { return (*lines)[i]; });
        for (const auto& record : Records<PublicRecord>(source_.reader)) {
            const TMR3DPnt &from = record->Geometrie.start, &to = record->Geometrie.end;
            const Point start = {from.x, from.y, from.z}, end = {to.x, to.y, to.z};
            const auto rank = static_cast<Index>(lines->size());
            Element& line = lines->emplace_back();
            line.kind = kind;
            line.rank = rank;
            line.identifier = static_cast<std::uint32_t>(record->identifier);
            line.isUsable = IsSensible(start) && IsSensible(end);
            if (!IsIn(line)) continue;
            const std::uint32_t first = points_.Add(start);
            part.Add(rank, VtkCell::kLine, {first, points_.Add(end)});
        }
        Hand(part);
    }

    void MakeSupports()
    {
        static constexpr std::pair<Kind, const char*> kKinds[] = {
            {Kind::kPointSupport, "point supports"},
            {Kind::kLineSupport, "line supports"},
            {Kind::kSurfaceSupport, "surface supports"},
        };
        const auto& supports = structure_.supports;
        for (const auto& [kind, name] : kKinds) {
            VtkPart part = BeginOf(name, supports);
            const auto add = [&](std::string_view array, const auto& get) {
                part.cellArrays.push_back(
                    MakeArray(array, [&supports, get](Index i) { return get(supports[i]); }));
            };
            add("Group", [](const Support& support) { return support.group; });
            add("Condition", [](const Support& support) { return NumberOf(support.condition); });
            add("Angle", [](const Support& support) { return support.angle; });
            add("Stiffness", [](const Support& support) { return support.stiffness; });
            for (Index i = 0; i < supports.size(); ++i) {
                if (supports[i].kind == kind && IsIn(supports[i])) AddSupport(part, supports[i], i);
            }
            Hand(part);
        }
    }
    void AddSupport(VtkPart& part, const Support& support, Index index)
    {
        if (support.kind == Kind::kPointSupport) return AddPoint(part, support, index);
        if (support.kind == Kind::kLineSupport) return AddLine(part, support, index);
        AddTriangles(part, support, index, cutter_.Polygon(support));
    }

    // Six values in a point: three along the axes, three about them.
    void MakePointValues(const std::vector<Load>& loads, const char* name, const char* along,
                         const char* about)
    {
        VtkPart part = BeginOf(name, loads);
        const auto add = [&](const char* array, std::size_t first) {
            part.pointArrays.push_back(MakeArray(array, [&loads, first](Index i) {
                const auto& values = loads[i].values;
                return Vector{values[first], values[first + 1], values[first + 2]};
            }));
        };
        add(along, 0);
        add(about, 3);
        ForEach(loads, [&](const Load& load, Index i) {
            const Index corner = structure_.CornersOf(load)[0];
            part.Add(i, VtkCell::kVertex, {points_.Add(structure_.points[corner])});
        });
        Hand(part);
    }

    void MakeLoads()
    {
        std::map<int, std::vector<Index>> cases;
        for (Index i = 0; i < structure_.loads.size(); ++i) {
            cases[structure_.loads[i].loadCase].push_back(i);
        }
        if (cases.size() > kMostCases) {
            std::vector<Index> all;
            for (const auto& [number, loads] : cases) {
                all.insert(all.end(), loads.begin(), loads.end());
            }
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

    void MakeLoadsOf(std::string name, const std::vector<Index>& indices)
    {
        const Structure& structure = structure_;
        const auto& loads = structure.loads;
        VtkPart part = BeginOf(std::move(name), loads);
        const auto add = [&](auto& arrays, std::string_view array, const auto& get) {
            arrays.push_back(MakeArray(array, [&loads, get](Index i) { return get(loads[i]); }));
        };
        add(part.cellArrays, "LoadCase", [](const Load& load) { return load.loadCase; });
        add(part.cellArrays, "Frame", [](const Load& load) { return load.frame; });
        add(part.cellArrays, "Size", [](const Load& load) { return load.size; });
        add(part.pointArrays, "Force",
            [&structure](const Load& load) { return ResultantOf(structure, load, 0); });
        add(part.pointArrays, "Moment",
            [&structure](const Load& load) { return ResultantOf(structure, load, 3); });
        for (const Index i : indices) {
            if (!IsIn(loads[i])) continue;
            if (loads[i].cornerCount == 0) {
                report_.losses.Add(loads[i].kind, kWithoutArea);
                continue;
            }
            if (loads[i].kind == Kind::kPointLoad && loads[i].frame == TMR_FORCE_LOCAL) {
                report_.losses.Add(Kind::kPointLoad, kLocalAsGlobal);
            }
            part.Add(i, VtkCell::kVertex, {points_.Add(MiddleOf(loads[i]))});
        }
        Hand(part);
    }

    Point MiddleOf(const Load& load)
    {
        if (load.kind == Kind::kLineLoad) return structure_.SegmentOf(load).At(0.5);
        GetOutline(structure_, load, outline_);
        const Point centroid = Polygon(outline_).Centroid();
        // Of hardly any area it may be anywhere.
        return IsSensible(centroid) ? centroid : outline_[0];
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
