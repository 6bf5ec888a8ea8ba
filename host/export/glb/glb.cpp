// glTF 2.0 in one file: a description as JSON, written as it comes, and the geometry after it.
#include <tamur/ranges.h>

#include <cerrno>
#include <fstream>
#include <limits>
#include <map>
#include <optional>
#include <system_error>
#include <unordered_map>

#include "host/export/glb/bar_meshes.h"
#include "host/export/glb/glb_losses.h"
#include "host/export/glb/record_json.h"
#include "host/export/glb/scene.h"
#include "host/export/writers.h"
#include "host/geometry/centring.h"
#include "host/geometry/surface_cutter.h"

namespace tamur::host {
namespace {

enum Material { kBarMaterial, kSurfaceMaterial, kWallMaterial, kSupportMaterial, kAxisMaterial };

// The elements that have a place; other records are in the extras of the root.
template <class PublicRecord>
constexpr bool kHasPlace = requires(PublicRecord record)
{
    record.startPoint;
}
|| requires(PublicRecord record)
{
    record.Geometrie;
}
|| requires(PublicRecord record)
{
    record.Surface.tabPoints;
};

Point PointOf(const TMR3DPnt& point)
{
    return {point.x, point.y, point.z};
}

// Where an element is: its first point. Nothing for a polygon without points.
std::optional<Point> FirstPointOf(const TMR3DPnt& point)
{
    return PointOf(point);
}
std::optional<Point> FirstPointOf(const TMR3DLine& line)
{
    return PointOf(line.start);
}
std::optional<Point> FirstPointOf(const TMR3DPlanarElement& polygon)
{
    if (polygon.nbPoints <= 0) return std::nullopt;
    return PointOf(polygon.tabPoints[0]);
}
template <class PublicRecord>
std::optional<Point> PlaceOf(const PublicRecord& record)
{
    if constexpr (requires { record.startPoint; }) {
        return PointOf(record.startPoint);
    } else if constexpr (requires { record.Geometrie; }) {
        return FirstPointOf(record.Geometrie);
    } else {
        return FirstPointOf(record.Surface);
    }
}

template <class PublicRecord>
std::uint32_t IdentifierOf(const PublicRecord& record)
{
    if constexpr (requires { record.identifier; }) {
        return static_cast<std::uint32_t>(record.identifier);
    } else {
        return static_cast<std::uint32_t>(record.lIdentifier);
    }
}

// Where orientation nodes are, by their numbers.
class NodePlaces {
 public:
    explicit NodePlaces(const Structure& structure) : structure_(structure) {}

    const Point* Find(std::int64_t identifier)
    {
        if (identifier == 0) return nullptr;
        if (!isRead_) Read();
        const auto found = places_.find(identifier);
        return found == places_.end() ? nullptr : &structure_.points[found->second];
    }

 private:
    void Read()
    {
        isRead_ = true;
        for (const Element& node : structure_.nodes) {
            if (!node.isUsable) continue;
            places_.try_emplace(node.identifier, structure_.CornersOf(node)[0]);
        }
    }

    const Structure& structure_;
    std::unordered_map<std::int64_t, Index> places_;
    bool isRead_ = false;
};

class GlbScene {
 public:
    GlbScene(const Source& source, ExportReport& report, JsonWriter& out)
        : source_(source),
          structure_(source.structure),
          report_(report),
          out_(out),
          nodes_(structure_),
          cutter_(structure_),
          bodies_(source.reader, meshes_, kBarMaterial)
    {
        Centring centring;
        for (const Point& point : structure_.points) centring.Add(point);
        centre_ = centring.Centre();
        axes_.reserve(2 * structure_.bars.size());
        meshes_.Expect(structure_.surfaces.size() + structure_.walls.size());
    }

    void Write()
    {
        out_.Begin('{');
        out_.Key("asset");
        out_.Begin('{');
        out_.Key("version");
        out_.Text("2.0");
        out_.Key("generator");
        out_.Text("TAMUR Reader");
        out_.End('}');
        report_.losses.Add(Kind::kNone, kMessages);
        Scene scene(out_);
        scene_ = &scene;
        ForEachTable(source_.reader, [this](const auto& table) { WriteElements(table); });
        WriteAxes();
        scene_->Add(Utf8Of(PathOf(source_.name).filename()), [this] { WriteRoot(); });
        scene.End();
        if (!meshes_.IsEmpty()) WriteMaterials();
        meshes_.Write(out_);
        out_.End('}');
    }

    [[nodiscard]] const Meshes& TheMeshes() const { return meshes_; }

 private:
    using Children = std::vector<std::uint32_t>;

    template <class Table>
    void WriteElements(const Table& table)
    {
        using PublicRecord = typename Table::PublicRecord;
        const Kind kind = KindOfTable(table.Name());
        const auto size = static_cast<std::size_t>(table.Size());
        const std::size_t taken = size - source_.selection.LeavesOut(kind);
        if constexpr (!kHasPlace<PublicRecord>) {
            report_.losses.Add(kind, kWithoutPlace, taken);
        } else {
            std::map<int, Children> branches;
            for (std::size_t rank = 0; rank < size; ++rank) {
                if (!source_.selection.Takes(kind, rank)) continue;
                auto record = table.At(static_cast<LONG>(rank));
                branches[BranchOf(record.Get())].push_back(
                    WriteElement(kind, static_cast<Index>(rank), record.Get()));
                report_.steps.Do();
            }
            AddBranches(kind, kBranchesOf<PublicRecord>, branches, table.PlainName());
            if (!IsDrawn(kind)) report_.losses.Add(kind, kNotDrawn, taken);
        }
    }

    static bool IsDrawn(Kind kind)
    {
        return kind == Kind::kBar || kind == Kind::kSurface || kind == Kind::kWall ||
               kind == Kind::kSurfaceSupport || kind == Kind::kOpening;
    }

    // Elements are together by their group, loads by their case.
    enum class Branches { kCases, kGroups, kNone };
    template <class PublicRecord>
    static constexpr Branches kBranchesOf = [] {
        if constexpr (requires(PublicRecord record) { record.NumCas; }) {
            return Branches::kCases;
        } else if constexpr (requires(PublicRecord record) { record.GroupNumber; }) {
            return Branches::kGroups;
        } else {
            return Branches::kNone;
        }
    }();
    template <class PublicRecord>
    static int BranchOf(const PublicRecord& record)
    {
        if constexpr (kBranchesOf<PublicRecord> == Branches::kCases) {
            return record.NumCas;
        } else if constexpr (kBranchesOf<PublicRecord> == Branches::kGroups) {
            return record.GroupNumber;
        } else {
            return 0;
        }
    }

    // Those of one table, below one node, with what is in each by its number.
    void AddBranches(Kind kind, Branches branches, const std::map<int, Children>& contents,
                     const char* name)
    {
        Children parent;
        for (const auto& [number, children] : contents) {
            if (branches == Branches::kCases) {
                AddBranchOf<TMRCas>(
                    "case", number, children, parent,
                    [number = number](const TMRCas& record) { return record.Num == number; });
            } else if (branches == Branches::kGroups) {
                AddBranchOf<TMRGroupe>("group", number, children, parent,
                                       [number = number, kind](const TMRGroupe& record) {
                                           return record.Num == number &&
                                                  KindOfGroup(record.Elem) == kind;
                                       });
            } else {
                parent.insert(parent.end(), children.begin(), children.end());
            }
        }
        scene_->AddBranch(name, parent, roots_, [] {});
    }
    // Named by the record that fits, which is in its extras.
    template <class PublicRecord, class Fits>
    void AddBranchOf(const char* what, int number, const Children& children, Children& parent,
                     const Fits& fits)
    {
        const auto records = Records<PublicRecord>(source_.reader);
        std::string name = std::string(what) + ' ' + std::to_string(number);
        for (LONG rank = 0; rank < records.Size(); ++rank) {
            auto record = records.At(rank);
            if (!fits(record.Get())) continue;
            name += ' ' + ToUtf8(ViewOf(record->Titre));
            return scene_->AddBranch(name, children, parent, [&] { WriteExtras(record.Get()); });
        }
        scene_->AddBranch(name, children, parent, [] {});
    }
    static Kind KindOfGroup(int elements)
    {
        constexpr Kind kKinds[] = {Kind::kNone,    Kind::kPointSupport,   Kind::kBar,
                                   Kind::kSurface, Kind::kSurfaceSupport, Kind::kLineSupport};
        return elements >= 1 && elements <= 5 ? kKinds[elements] : Kind::kNone;
    }

    template <class PublicRecord>
    std::uint32_t WriteElement(Kind kind, Index rank, PublicRecord& record)
    {
        return scene_->Add(NameOf(kind, record), [&] {
            WriteShape(kind, rank, record);
            WriteExtras(record, rank);
        });
    }

    template <class PublicRecord>
    static std::string NameOf(Kind kind, const PublicRecord& record)
    {
        if constexpr (requires { record.ElemLabels; }) {
            if (record.ElemLabels.nbLabels > 0) {
                std::string label = ToUtf8(ViewOf(record.ElemLabels.tabLabels[0]));
                if (!label.empty()) return label;
            }
        }
        return std::string(NounOf(kind, Language::kEnglish)) + ' ' +
               std::to_string(IdentifierOf(record));
    }

    template <class PublicRecord>
    void WriteExtras(PublicRecord& record, Index rank = kNone)
    {
        out_.Key("extras");
        out_.Begin('{');
        VisitFields(record, RecordJson(out_));
        if constexpr (std::is_same_v<PublicRecord, TMRFilaire>) {
            const Bar& bar = structure_.bars[rank];
            WritePlace("StartSection", bar.startSection);
            WritePlace("EndSection", bar.endSection);
            WritePlace("StartConnection", bar.startRelease);
            WritePlace("EndConnection", bar.endRelease);
            WritePlace("FilaireMaterial", bar.material);
        } else if constexpr (std::is_same_v<PublicRecord, TMRSurfacique>) {
            WritePlace("SurfaciqueMaterial", structure_.surfaces[rank].material);
        }
        out_.End('}');
    }
    // In the table of the root's extras, from 1; 0 for none.
    void WritePlace(const char* name, Index index)
    {
        out_.Key(name);
        out_.Number(index == kNone ? 0 : std::int64_t{index} + 1);
    }

    void WriteTranslation(Point point)
    {
        const Point from = point - centre_;
        if (from != Point{}) out_.Array("translation", from.x, from.y, from.z);
    }

    template <class PublicRecord>
    void WriteShape(Kind kind, Index rank, const PublicRecord& record)
    {
        const std::optional<Point> place = PlaceOf(record);
        if (!place) return;
        if (!IsSensible(*place)) return report_.losses.Add(kind, kAbsurdShape);
        if constexpr (std::is_same_v<PublicRecord, TMRFilaire>) {
            WriteBody(structure_.bars[rank], record);
        } else {
            WriteTranslation(*place);
            if constexpr (std::is_same_v<PublicRecord, TMRSurfacique>) {
                const Surface& surface = structure_.surfaces[rank];
                WriteSurface(surface, *place, surface.thickness, kSurfaceMaterial,
                             [&] { return cutter_.Surface(rank); });
            } else if constexpr (std::is_same_v<PublicRecord, TMROuverture>) {
                if (structure_.openings[rank].surface == kNone) {
                    report_.losses.Add(kind, kOpensNothing);
                }
            } else if constexpr (std::is_same_v<PublicRecord, TMRParoi>) {
                const Surface& wall = structure_.walls[rank];
                WriteSurface(wall, *place, 0, kWallMaterial, [&] { return cutter_.Polygon(wall); });
            } else if constexpr (std::is_same_v<PublicRecord, TMRAppuiSurfacique>) {
                // They come after the others.
                const auto& supports = structure_.supports;
                const auto count = Records<TMRAppuiSurfacique>(source_.reader).Size();
                const Support& support =
                    supports[supports.size() - static_cast<std::size_t>(count) + rank];
                WriteSurface(support, *place, 0, kSupportMaterial,
                             [&] { return cutter_.Polygon(support); });
            }
        }
    }

    template <class Cut>
    void WriteSurface(const Element& element, Point origin, double thickness, Material material,
                      const Cut& cutOut)
    {
        if (!element.isUsable) return report_.losses.Add(element.kind, kAbsurdShape);
        const std::optional<SurfaceCutter::Cut> cut = cutOut();
        if (const LossText* loss = LossOf(cut)) report_.losses.Add(element.kind, *loss);
        if (!cut || cut->triangles.corners.empty()) return;
        const double drawn = IsSensible({thickness, 0, 0}) ? thickness : 0;
        MakeSolid(cut->triangles, cut->frame.z, drawn, origin, solid_);
        WriteMesh(meshes_.Add(solid_.points, solid_.corners, material));
    }

    void WriteMesh(std::uint32_t mesh)
    {
        out_.Key("mesh");
        out_.Number(mesh);
    }

    void WriteBody(const Bar& bar, const TMRFilaire& record)
    {
        const Point* const orientation = nodes_.Find(bar.orientationNode);
        const auto frame = FrameOfBar(record, orientation);
        const Point start = PointOf(record.startPoint), end = PointOf(record.endPoint);
        if (!frame) {
            if (!bar.isUsable) report_.losses.Add(Kind::kBar, kAbsurdShape);
            return WriteTranslation(start);
        }
        axes_.push_back(Centring::Relative(start, centre_));
        axes_.push_back(Centring::Relative(end, centre_));
        if (bar.type == BarType::kPoutreC) report_.losses.Add(Kind::kBar, kCurved);
        const auto body = bodies_.BodyOf(bar, record.Excentration);
        if (!body) {
            report_.losses.Add(Kind::kBar, kUnknownOutline);
            return WriteTranslation(start);
        }
        if (body->isStandIn) report_.losses.Add(Kind::kBar, kRectangle);
        if (body->isEven) report_.losses.Add(Kind::kBar, kEvenSection);
        WriteTranslation(start + frame->y * body->offset.u + frame->z * body->offset.v);
        const auto turn = QuaternionOf(*frame);
        out_.Array("rotation", turn[0], turn[1], turn[2], turn[3]);
        out_.Array("scale", bar.length, 1, 1);
        WriteMesh(body->mesh);
    }

    // All bars as lines, apart from their bodies, so that viewers can show either.
    void WriteAxes()
    {
        if (axes_.empty()) return;
        report_.losses.Add(Kind::kBar, kUpright, axes_.size() / 2);
        const std::uint32_t mesh = meshes_.AddLines(std::move(axes_), kAxisMaterial);
        roots_.push_back(scene_->Add("axes of bars", [&] { WriteMesh(mesh); }));
    }

    void WriteRoot()
    {
        // z of the model is up, y of glTF.
        const double half = std::sqrt(0.5);
        out_.Array("rotation", -half, 0, 0, half);
        scene_->WriteChildren(roots_);
        out_.Key("extras");
        out_.Begin('{');
        out_.Array("centre", centre_.x, centre_.y, centre_.z);
        TMRStructureData settings = {};
        Check(source_.reader.GetStructureGlobalData(&settings), "GetStructureGlobalData");
        out_.Key("StructureGlobalData");
        out_.Begin('{');
        VisitFields(settings, RecordJson(out_));
        out_.End('}');
        ForEachTable(source_.reader, [this](const auto& table) { WriteTable(table); });
        WriteModes();
        out_.End('}');
    }
    template <class Table>
    void WriteTable(const Table& table)
    {
        if constexpr (!kHasPlace<typename Table::PublicRecord>) {
            const Kind kind = KindOfTable(table.Name());
            out_.Key(table.Name());
            out_.Begin('[');
            std::size_t rank = 0;
            for (auto record : table) {
                if (!source_.selection.Takes(kind, rank++)) continue;
                out_.Begin('{');
                VisitFields(record.Get(), RecordJson(out_));
                out_.End('}');
            }
            out_.End(']');
        }
    }
    void WriteModes()
    {
        Record<TMRModes> modes;
        Check(GetAccessor(source_.reader, &ITAMURStructureReader::GetChargeAccessor)
                  ->GetModes(modes.Put()),
              "GetModes");
        out_.Key("Modes");
        out_.Begin('{');
        VisitFields(modes.Get(), RecordJson(out_));
        out_.End('}');
    }

    void WriteMaterials()
    {
        struct Colour {
            const char* name;
            double red, green, blue, opacity;
        };
        constexpr Colour kColours[] = {
            {"bars", 0.35, 0.45, 0.6, 1},        {"surfaces", 0.7, 0.7, 0.66, 1},
            {"walls", 0.5, 0.7, 0.8, 0.35},      {"supports", 0.75, 0.4, 0.2, 0.6},
            {"axes of bars", 0.05, 0.1, 0.3, 1},
        };
        out_.Key("materials");
        out_.Begin('[');
        for (const Colour& colour : kColours) {
            out_.Begin('{');
            out_.Key("name");
            out_.Text(colour.name);
            out_.Key("pbrMetallicRoughness");
            out_.Begin('{');
            out_.Array("baseColorFactor", colour.red, colour.green, colour.blue, colour.opacity);
            out_.Key("metallicFactor");
            out_.Number(0);
            out_.End('}');
            if (colour.opacity < 1) {
                out_.Key("alphaMode");
                out_.Text("BLEND");
            }
            out_.Key("doubleSided");
            out_.True();
            out_.End('}');
        }
        out_.End(']');
    }

    const Source& source_;
    const Structure& structure_;
    ExportReport& report_;
    JsonWriter& out_;
    Scene* scene_ = nullptr;
    NodePlaces nodes_;
    SurfaceCutter cutter_;
    Meshes meshes_;
    BarMeshes bodies_;
    Point centre_;
    Children roots_;
    std::vector<Meshes::Position> axes_;
    Solid solid_;
};

void WriteWord(std::ostream& out, std::uint64_t value)
{
    if (value > std::numeric_limits<std::uint32_t>::max()) {
        throw OutputError("the model is too large for this form: 4 GiB",
                          "le modèle est trop grand pour cette forme : 4 Gio");
    }
    const auto word = static_cast<std::uint32_t>(value);
    out.write(reinterpret_cast<const char*>(&word), sizeof word);
}

}  // namespace

void WriteGlb(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report)
{
    constexpr std::uint32_t kMagic = 0x46546C67, kVersion = 2;
    constexpr std::uint32_t kJson = 0x4E4F534A, kBinary = 0x004E4942;
    constexpr std::uint64_t kHeader = 12, kChunkHeader = 8;
    std::ofstream out(output.AddFile(path), std::ios::binary);
    // Their place: the sizes are known at the end.
    const std::string place(kHeader + kChunkHeader, '\0');
    out << place;
    JsonWriter json(out);
    GlbScene scene(source, report, json);
    scene.Write();
    json.Flush();
    std::uint64_t size = json.Size();
    for (; size % 4 != 0; ++size) out << ' ';
    const std::uint64_t binary = scene.TheMeshes().ByteSize();
    if (binary > 0) {
        WriteWord(out, binary);
        WriteWord(out, kBinary);
        scene.TheMeshes().WriteBytes(out);
    }
    out.seekp(0);
    WriteWord(out, kMagic);
    WriteWord(out, kVersion);
    WriteWord(out, kHeader + kChunkHeader + size + (binary > 0 ? kChunkHeader + binary : 0));
    WriteWord(out, size);
    WriteWord(out, kJson);
    out.close();
    if (!out) FailToWrite();
}

}  // namespace tamur::host
