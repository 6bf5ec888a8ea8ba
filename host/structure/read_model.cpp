#include "host/structure/read_model.h"

#include <tamur/ranges.h>

#include <algorithm>
#include <string_view>

#include "host/structure/box_tree.h"
#include "host/structure/point_merger.h"
#include "host/structure/property_index.h"
#include "host/structure/tolerances.h"

namespace tamur::host {
namespace {

Point PointOf(const TMR3DPnt& point)
{
    return {point.x, point.y, point.z};
}

std::int64_t IdentifierOf(LONG identifier)
{
    return static_cast<std::uint32_t>(identifier);
}

// The coordinate that is not sensible.
double GreatestOf(Point point)
{
    for (const double value : {point.x, point.y, point.z}) {
        if (!IsSensible({value, 0, 0})) return value;
    }
    return 0;
}

BarType BarTypeOf(BSTR name)
{
    const WideStringView text = ViewOf(name);
    constexpr std::pair<std::string_view, BarType> kNames[] = {
        {"Barre", BarType::kBarre},     {"Poutre", BarType::kPoutre},
        {"PoutreV", BarType::kPoutreV}, {"PoutreC", BarType::kPoutreC},
        {"Tirant", BarType::kTirant},
    };
    for (const auto& [known, type] : kNames) {
        if (std::equal(text.begin(), text.end(), known.begin(), known.end())) return type;
    }
    return BarType::kOther;
}

SurfaceType SurfaceTypeOf(BSTR name)
{
    constexpr std::pair<std::string_view, SurfaceType> kNames[] = {
        {"Coque", SurfaceType::kCoque},        {"Plaque", SurfaceType::kPlaque},
        {"Membrane", SurfaceType::kMembrane},  {"Coque E", SurfaceType::kCoqueE},
        {"Plaque E", SurfaceType::kPlaqueE},   {"Axisym", SurfaceType::kAxisym},
        {"Déf Plane", SurfaceType::kDefPlane},
    };
    const std::string text = ToUtf8(ViewOf(name));
    for (const auto& [known, type] : kNames) {
        if (text == known) return type;
    }
    return SurfaceType::kOther;
}

// By the end of "Appui ponctuel rigide" and its like.
SupportCondition ConditionOf(BSTR name)
{
    const WideStringView text = ViewOf(name);
    const auto endsWith = [text](std::string_view end) {
        return text.size() >= end.size() &&
               std::equal(end.begin(), end.end(),
                          text.end() - static_cast<std::ptrdiff_t>(end.size()));
    };
    if (endsWith("rigide")) return SupportCondition::kRigid;
    if (endsWith("lastique")) return SupportCondition::kElastic;
    return endsWith("vide") ? SupportCondition::kVoid : SupportCondition::kStop;
}

// The points of all elements, as written. They are given back as they are used: with what is made
// of them they would be the most that a model takes.
class WrittenPoints {
 public:
    void Add(Point point)
    {
        if (pieces_.empty() || pieces_.back().size() == kPiece) {
            pieces_.emplace_back().reserve(std::min(expected_, kPiece));
        }
        pieces_.back().push_back(point);
        ++size_;
    }
    void Expect(std::size_t count) { expected_ = count; }
    [[nodiscard]] std::size_t Size() const { return size_; }

    // Calls use(points) for one piece after the other.
    template <class Use>
    void TakeAll(const Use& use)
    {
        for (std::vector<Point>& piece : pieces_) {
            use(std::span<const Point>(piece));
            piece = {};
        }
    }

 private:
    // Of more than 32 MiB: smaller ones the C library may keep for itself.
    static constexpr std::size_t kPiece = 1'400'000;

    std::vector<std::vector<Point>> pieces_;
    std::size_t size_ = 0, expected_ = 0;
};

// Reads table by table; the points are gathered as written, and merged when all are known.
class ModelReader {
 public:
    explicit ModelReader(ITAMURStructureReader& reader) : reader_(reader) {}

    Structure Read()
    {
        Reserve();
        ReadProperties();
        ReadNodes();
        ReadBars();
        ReadSurfaces();
        ReadLines();
        ReadSupports();
        ReadLoads();
        ReadGroupLoads();
        MergePoints();
        return std::move(structure_);
    }

 private:
    template <class PublicRecord>
    [[nodiscard]] std::size_t SizeOf() const
    {
        return static_cast<std::size_t>(Records<PublicRecord>(reader_).Size());
    }
    // Large lists grow once.
    void Reserve()
    {
        const std::size_t polygons = SizeOf<TMRSurfacique>() + SizeOf<TMROuverture>() +
                                     SizeOf<TMRParoi>() + SizeOf<TMRChargeSurfacique>();
        const std::size_t lines = SizeOf<TMRFilaire>() + SizeOf<TMRChargeLineaire>();
        const std::size_t points = SizeOf<TMRNode>() + SizeOf<TMRChargePonctuelle>();
        written_.Expect(4 * polygons + 2 * lines + points + 1000);
        structure_.nodes.reserve(SizeOf<TMRNode>());
        structure_.bars.reserve(SizeOf<TMRFilaire>());
        structure_.surfaces.reserve(SizeOf<TMRSurfacique>());
        structure_.openings.reserve(SizeOf<TMROuverture>());
        structure_.walls.reserve(SizeOf<TMRParoi>());
        structure_.supports.reserve(SizeOf<TMRAppuiPonctuel>() + SizeOf<TMRAppuiLineaire>() +
                                    SizeOf<TMRAppuiSurfacique>());
        structure_.loads.reserve(SizeOf<TMRChargePonctuelle>() + SizeOf<TMRChargeLineaire>() +
                                 SizeOf<TMRChargeSurfacique>());
    }
    template <class PublicRecord, class Read>
    void ForEach(Read read)
    {
        const Range<PublicRecord> table = Records<PublicRecord>(reader_);
        const LONG size = table.Size();
        for (LONG rank = 0; rank < size; ++rank) {
            auto record = table.At(rank);
            read(record.Get(), static_cast<Index>(rank));
        }
    }

    // Begins an element whose points are to follow.
    template <class Kept>
    Kept Begin(Kind kind, Index rank, LONG identifier) const
    {
        Kept element;
        element.kind = kind;
        element.rank = rank;
        element.identifier = IdentifierOf(identifier);
        element.firstCorner = static_cast<Index>(written_.Size());
        return element;
    }
    void AddPoint(Element& element, const TMR3DPnt& point)
    {
        if (element.cornerCount++ == 0) corners_.clear();
        const Point written = PointOf(point);
        corners_.push_back(written);
        written_.Add(written);
        if (IsSensible(written)) return around_.Add(written);
        element.isUsable = false;
        structure_.absurd.try_emplace(element.firstCorner, GreatestOf(written));
    }
    void AddPoints(Element& element, const TMR3DLine& line)
    {
        AddPoint(element, line.start);
        AddPoint(element, line.end);
    }
    void AddPoints(Element& element, const TMR3DPlanarElement& polygon)
    {
        for (int i = 0; i < polygon.nbPoints; ++i) AddPoint(element, polygon.tabPoints[i]);
    }
    void ReadProperties();
    void ReadNodes();
    void ReadBars();
    void ReadSurfaces();
    void ReadLines();
    void ReadSupports();
    void ReadLoads();
    void ReadGroupLoads();
    void AddCorners(PointMerger& merger, std::span<const Point> points);
    void MergePoints();

    Surface ReadPolygon(Kind kind, Index rank, LONG identifier, const TMR3DPlanarElement& polygon);
    template <class PublicRecord>
    Support ReadSupport(Kind kind, Index rank, const PublicRecord& record) const;
    template <class PublicRecord>
    Load ReadLoad(Kind kind, Index rank, const PublicRecord& record) const;

    ITAMURStructureReader& reader_;
    Structure structure_;
    WrittenPoints written_;
    std::vector<Point> corners_;  // of the element that is read
    Box around_;                  // the sensible ones
    PropertyIndex materials_, sections_, releases_;
};

void ModelReader::ReadProperties()
{
    ForEach<TMRMaterial>([this](TMRMaterial& record, Index) {
        materials_.Add(record);
        // The values of the material that the import makes when the file has none.
        const bool isDefault = record.E == 1.962e10 && record.d == 24525 && record.nu == 0.1 &&
                               ToUtf8(ViewOf(record.MaterialName)) == "BETON";
        structure_.materials.push_back({ToUtf8(ViewOf(record.MaterialName)), record.E, record.nu,
                                        record.d, record.alpha, record.amortissement, isDefault});
    });
    ForEach<TMRSectionGeometry>([this](TMRSectionGeometry& record, Index) {
        sections_.Add(record);
        // No section of a file has the outline code 0.
        structure_.sections.push_back(
            {ToUtf8(ViewOf(record.SectionLib)),
             {record.Sx, record.Sy, record.Sz, record.Ix, record.Iy, record.Iz, record.Vx,
              record.V1y, record.V1z, record.V2y, record.V2z},
             record.epureSec.Code == 0});
    });
    ForEach<TMRAttache>([this](TMRAttache& record, Index) {
        releases_.Add(record);
        structure_.releases.push_back({ToUtf8(ViewOf(record.AttacheLib)), record.Rotules});
    });
    ForEach<TMRGroupe>([this](TMRGroupe& record, Index) {
        structure_.groups.push_back({record.Elem, record.Num, ToUtf8(ViewOf(record.Titre))});
    });
}

void ModelReader::ReadNodes()
{
    ForEach<TMRNode>([this](TMRNode& record, Index rank) {
        auto node = Begin<Element>(Kind::kNode, rank, record.identifier);
        AddPoint(node, record.Geometrie);
        structure_.nodes.push_back(node);
    });
}

void ModelReader::ReadBars()
{
    ForEach<TMRFilaire>([this](TMRFilaire& record, Index rank) {
        Bar bar = Begin<Bar>(Kind::kBar, rank, record.identifier);
        AddPoint(bar, record.startPoint);
        AddPoint(bar, record.endPoint);
        bar.length = Length(PointOf(record.endPoint) - PointOf(record.startPoint));
        bar.group = record.GroupNumber;
        bar.type = BarTypeOf(record.ElementType);
        bar.material = materials_.Find(record.FilaireMaterial);
        bar.startSection = sections_.Find(record.StartSection);
        bar.endSection = sections_.Find(record.EndSection);
        bar.startRelease = releases_.Find(record.StartConnection);
        bar.endRelease = releases_.Find(record.EndConnection);
        bar.releasedAtStart = record.StartConnection.Rotules;
        bar.releasedAtEnd = record.EndConnection.Rotules;
        bar.orientationNode = IdentifierOf(record.OrientationNode);
        bar.angle = AngleAsWritten(record);
        structure_.bars.push_back(bar);
    });
}

Surface ModelReader::ReadPolygon(Kind kind, Index rank, LONG identifier,
                                 const TMR3DPlanarElement& polygon)
{
    Surface surface = Begin<Surface>(kind, rank, identifier);
    AddPoints(surface, polygon);
    if (!surface.isUsable || surface.cornerCount == 0) return surface;
    const Polygon shape(corners_);
    surface.plane = shape.ThePlane();
    surface.area = shape.Area();
    surface.perimeter = shape.Perimeter();
    surface.outOfPlane = shape.OutOfPlane();
    surface.isConvex = shape.IsConvex();
    return surface;
}

void ModelReader::ReadSurfaces()
{
    ForEach<TMRSurfacique>([this](TMRSurfacique& record, Index rank) {
        Surface surface = ReadPolygon(Kind::kSurface, rank, record.identifier, record.Surface);
        surface.group = record.GroupNumber;
        surface.type = SurfaceTypeOf(record.ElementType);
        surface.thickness = record.Thickness;
        surface.material = materials_.Find(record.SurfaciqueMaterial);
        structure_.surfaces.push_back(surface);
    });
    ForEach<TMROuverture>([this](TMROuverture& record, Index rank) {
        structure_.openings.push_back(
            ReadPolygon(Kind::kOpening, rank, record.identifier, record.Surface));
    });
    ForEach<TMRParoi>([this](TMRParoi& record, Index rank) {
        structure_.walls.push_back(
            ReadPolygon(Kind::kWall, rank, record.identifier, record.Surface));
    });
}

void ModelReader::ReadLines()
{
    ForEach<TMRCable>([this](TMRCable& record, Index rank) {
        auto cable = Begin<Element>(Kind::kCable, rank, record.identifier);
        AddPoints(cable, record.Geometrie);
        structure_.cableCases.push_back(record.NumCas);
        structure_.cables.push_back(cable);
    });
    ForEach<TMRLineInterieur>([this](TMRLineInterieur& record, Index rank) {
        auto line = Begin<Element>(Kind::kInnerLine, rank, record.lIdentifier);
        AddPoints(line, record.Geometrie);
        structure_.innerLines.push_back(line);
    });
    ForEach<TMRSurfacicSection>([this](TMRSurfacicSection& record, Index rank) {
        structure_.cuts.push_back(Begin<Element>(Kind::kSurfaceSection, rank, record.identifier));
    });
    ForEach<TMRLine>([this](TMRLine& record, Index rank) {
        structure_.constructionLines.push_back(
            Begin<Element>(Kind::kConstructionLine, rank, record.identifier));
    });
}

template <class PublicRecord>
Support ModelReader::ReadSupport(Kind kind, Index rank, const PublicRecord& record) const
{
    Support support = Begin<Support>(kind, rank, record.identifier);
    support.condition = ConditionOf(record.ElementType);
    support.group = record.GroupNumber;
    std::copy(std::begin(record.Raideurs), std::end(record.Raideurs), support.stiffness.begin());
    if constexpr (requires { record.Angle; }) support.angle = record.Angle;
    return support;
}

void ModelReader::ReadSupports()
{
    ForEach<TMRAppuiPonctuel>([this](TMRAppuiPonctuel& record, Index rank) {
        Support support = ReadSupport(Kind::kPointSupport, rank, record);
        support.orientationNode = IdentifierOf(record.NdOri);
        AddPoint(support, record.Geometrie);
        structure_.supports.push_back(support);
    });
    ForEach<TMRAppuiLineaire>([this](TMRAppuiLineaire& record, Index rank) {
        Support support = ReadSupport(Kind::kLineSupport, rank, record);
        AddPoints(support, record.Geometrie);
        structure_.supports.push_back(support);
    });
    ForEach<TMRAppuiSurfacique>([this](TMRAppuiSurfacique& record, Index rank) {
        Support support = ReadSupport(Kind::kSurfaceSupport, rank, record);
        AddPoints(support, record.Geometrie);
        structure_.supports.push_back(support);
    });
}

template <class PublicRecord>
Load ModelReader::ReadLoad(Kind kind, Index rank, const PublicRecord& record) const
{
    Load load = Begin<Load>(kind, rank, record.identifier);
    load.loadCase = record.NumCas;
    load.frame = record.Repere;
    load.values = {record.Fx, record.Fy, record.Fz};
    return load;
}

// The intensity at the centroid of a polygon, when it is linear and given at three corners.
double MeanIntensity(std::span<const Point> corners, const Point& centroid,
                     const TMRChargeSurfacique& load)
{
    const double mean = (load.intensiteI + load.intensiteJ + load.intensiteK) / 3;
    if (corners.size() < 3) return mean;
    const Point toJ = corners[1] - corners[0], toK = corners[2] - corners[0];
    const Point normal = Cross(toJ, toK);
    const double square = Dot(normal, normal);
    if (square <= 0) return mean;
    const Point place = centroid - corners[0];
    const double shareJ = Dot(Cross(place, toK), normal) / square;
    const double shareK = Dot(Cross(toJ, place), normal) / square;
    return load.intensiteI + shareJ * (load.intensiteJ - load.intensiteI) +
           shareK * (load.intensiteK - load.intensiteI);
}

void ModelReader::ReadLoads()
{
    ForEach<TMRChargePonctuelle>([this](TMRChargePonctuelle& record, Index rank) {
        Load load = ReadLoad(Kind::kPointLoad, rank, record);
        load.values = {record.Fx, record.Fy, record.Fz, record.Mx, record.My, record.Mz};
        AddPoint(load, record.Geometrie);
        structure_.loads.push_back(load);
    });
    ForEach<TMRChargeLineaire>([this](TMRChargeLineaire& record, Index rank) {
        Load load = ReadLoad(Kind::kLineLoad, rank, record);
        load.values = {record.Fx, record.Fy, record.Fz, record.Mx, record.My, record.Mz};
        load.intensity = (record.intensityDebut + record.intensityFin) / 2;
        AddPoints(load, record.Geometrie);
        load.size = Length(corners_[1] - corners_[0]);
        structure_.loads.push_back(load);
    });
    ForEach<TMRChargeSurfacique>([this](TMRChargeSurfacique& record, Index rank) {
        Load load = ReadLoad(Kind::kSurfaceLoad, rank, record);
        AddPoints(load, record.Geometrie);
        if (load.cornerCount == 0) corners_.clear();
        const Polygon shape(corners_);
        load.size = shape.Area();
        load.intensity = MeanIntensity(corners_, shape.Centroid(), record);
        structure_.loads.push_back(load);
    });
    ForEach<TMRMasse>([this](TMRMasse& record, Index rank) {
        Load mass = Begin<Load>(Kind::kMass, rank, record.identifier);
        mass.values = {record.Mx, record.My, record.Mz, record.Ix, record.Iy, record.Iz};
        AddPoint(mass, record.Geometrie);
        structure_.masses.push_back(mass);
    });
    ForEach<TMRDeplacement>([this](TMRDeplacement& record, Index rank) {
        Load move = Begin<Load>(Kind::kDisplacement, rank, record.identifier);
        move.values = {record.dX, record.dY, record.dZ, record.Rx, record.Ry, record.Rz};
        AddPoint(move, record.Geometrie);
        structure_.displacements.push_back(move);
    });
}

void ModelReader::ReadGroupLoads()
{
    ForEach<TMRChargePoidsPropre>([this](TMRChargePoidsPropre& record, Index rank) {
        structure_.groupLoads.push_back({Kind::kSelfWeight,
                                         rank,
                                         IdentifierOf(record.identifier),
                                         record.NumCas,
                                         record.ElemGrp,
                                         record.NumGrp,
                                         {record.dX, record.dY, record.dZ}});
    });
    ForEach<TMRChargeThermique>([this](TMRChargeThermique& record, Index rank) {
        structure_.groupLoads.push_back({Kind::kThermalLoad,
                                         rank,
                                         IdentifierOf(record.identifier),
                                         record.NumCas,
                                         record.ElemGrp,
                                         record.NumGrp,
                                         {record.DeltaT, record.Gy, record.Gz}});
    });
}

void ModelReader::AddCorners(PointMerger& merger, std::span<const Point> points)
{
    // What is between those that cannot be meant: usually all.
    while (!points.empty()) {
        const auto end = structure_.absurd.empty()
                             ? points.end()
                             : std::find_if_not(points.begin(), points.end(), IsSensible);
        const auto count = static_cast<std::size_t>(end - points.begin());
        merger.AddNumbersOf(points.first(count), structure_.corners);
        points = points.subspan(count);
        if (points.empty()) break;
        structure_.corners.push_back(kNone);
        points = points.subspan(1);
    }
}

void ModelReader::MergePoints()
{
    TMRStructureData settings = {};
    Check(reader_.GetStructureGlobalData(&settings), "GetStructureGlobalData");
    SetTolerances(structure_, settings.tol3D, around_.Diagonal());
    PointMerger merger(structure_.tolerance, around_.low, written_.Size());
    structure_.corners.reserve(written_.Size());
    written_.TakeAll([&](std::span<const Point> points) { AddCorners(merger, points); });
    structure_.points = merger.TakePoints();
    for (Bar& bar : structure_.bars) {
        if (!bar.isUsable) continue;
        bar.start = structure_.corners[bar.firstCorner];
        bar.end = structure_.corners[bar.firstCorner + 1];
    }
    for (auto* polygons : {&structure_.surfaces, &structure_.openings, &structure_.walls}) {
        for (Surface& polygon : *polygons) {
            polygon.isPlane =
                polygon.isUsable && polygon.area > structure_.tolerance * polygon.perimeter / 2;
        }
    }
}

}  // namespace

double AngleAsWritten(const TMRFilaire& bar)
{
    constexpr double kQuarter = 90;
    return bar.StartSection.epureSec.Code == 0 ? bar.Angle : bar.Angle - kQuarter;
}

Structure ReadModel(ITAMURStructureReader& reader)
{
    return ModelReader(reader).Read();
}

std::vector<Point> OutlineOf(const Structure& structure, const Element& element)
{
    std::vector<Point> outline;
    GetOutline(structure, element, outline);
    return outline;
}

void GetOutline(const Structure& structure, const Element& element, std::vector<Point>& outline)
{
    outline.clear();
    outline.reserve(element.cornerCount);
    for (const Index corner : structure.CornersOf(element)) {
        outline.push_back(structure.points[corner]);
    }
}

}  // namespace tamur::host
