#include <tamur/ranges.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "host/export/saf/labels.h"
#include "host/export/saf/lines.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kDamping = {
    LossType::kPartly,
    {"damping and bearing areas have no columns; supports have no layers for their groups",
     "les amortissements et aires d'appui n'ont pas de colonnes, ni les groupes d'appuis de "
     "calques"}};
constexpr LossText kTurned = {
    LossType::kPartly,
    {"supports of nodes are along the axes of the model: one that is turned by less than a quarter "
     "is written unturned",
     "les appuis de nœuds suivent les axes du modèle : celui qui est tourné de moins d'un quart de "
     "tour est écrit non tourné"}};
constexpr LossText kLineAngle = {LossType::kPartly,
                                 {"angles of line supports are not written",
                                  "les angles d'appuis linéaires ne sont pas écrits"}};
constexpr LossText kUnusable = {
    LossType::kNot, {"the coordinates cannot be meant", "les coordonnées sont impossibles"}};
constexpr LossText kOnNothing = {
    LossType::kNot,
    {"a line support that lies on no bar, edge or surface that is written",
     "un appui linéaire qui n'est sur aucun filaire, bord ou surfacique écrit"}};
constexpr LossText kPartOfLine = {
    LossType::kPartly,
    {"a part of the line lies on no bar and on no edge: it is not written",
     "une partie de la ligne n'est sur aucun filaire ni bord : elle n'est pas écrite"}};
constexpr LossText kNotWhole = {LossType::kNot,
                                {"a surface support that covers no whole surface",
                                 "un appui surfacique qui ne couvre aucun surfacique entier"}};
constexpr LossText kRotations = {LossType::kPartly,
                                 {"rotations of surface supports have no columns",
                                  "les rotations d'appuis surfaciques n'ont pas de colonnes"}};
constexpr LossText kRigid = {
    LossType::kAssumed,
    {"what a rigid support has a stiffness for is Rigid, the rest Free; one without any stiffness "
     "holds the three translations",
     "un appui rigide bloque (Rigid) là où il a une raideur, le reste est Free ; sans aucune "
     "raideur il bloque les trois translations"}};
constexpr LossText kStop = {LossType::kAssumed,
                            {"a stop (butée) may lift off upwards: uz is Compression only",
                             "une butée peut se soulever : uz est Compression only"}};
constexpr LossText kPlateAxes = {LossType::kAssumed,
                                 {"C1z is the stiffness nearest to the normal of the surface",
                                  "C1z est la raideur la plus proche de la normale du surfacique"}};

using Stiffness = std::array<double, 6>;

// The words for the six freedoms and what is flexible, in MN and m.
Row& AddFreedoms(Row& row, SupportCondition condition, const Stiffness& stiffness)
{
    const bool isAny =
        std::any_of(stiffness.begin(), stiffness.end(), [](double value) { return value != 0; });
    const auto isFlexible = [&](std::size_t i) {
        return condition == SupportCondition::kElastic && stiffness[i] != 0 &&
               std::isfinite(stiffness[i]);
    };
    for (std::size_t i = 0; i < stiffness.size(); ++i) {
        constexpr std::size_t kVerticalMove = 2;
        const bool isHeld =
            stiffness[i] != 0 || (!isAny && i < 3 && condition != SupportCondition::kElastic);
        if (condition == SupportCondition::kVoid || !isHeld) {
            row.Text("Free");
        } else if (isFlexible(i)) {
            row.Text("Flexible");
        } else if (condition == SupportCondition::kStop && i == kVerticalMove) {
            row.Text("Compression only");
        } else {
            row.Text("Rigid");
        }
    }
    for (std::size_t i = 0; i < stiffness.size(); ++i) {
        if (isFlexible(i)) {
            row.Number(stiffness[i] * 1e-6);
        } else {
            row.Skip();
        }
    }
    return row;
}

// Along the axes of the model, when the frame is turned by quarters only.
bool TurnToModel(const Frame& frame, Stiffness& stiffness)
{
    constexpr double kNear = 1e-6;
    const Point axes[] = {frame.x, frame.y, frame.z};
    Stiffness turned = stiffness;
    for (std::size_t local = 0; local < 3; ++local) {
        const double parts[] = {axes[local].x, axes[local].y, axes[local].z};
        const auto* const along = std::find_if(std::begin(parts), std::end(parts), [](double part) {
            return std::abs(std::abs(part) - 1) < kNear;
        });
        if (along == std::end(parts)) return false;
        const auto global = static_cast<std::size_t>(along - std::begin(parts));
        turned[global] = stiffness[local];
        turned[global + 3] = stiffness[local + 3];
    }
    stiffness = turned;
    return true;
}

bool IsTheSameAllAround(const Stiffness& stiffness)
{
    return stiffness[0] == stiffness[1] && stiffness[1] == stiffness[2] &&
           stiffness[3] == stiffness[4] && stiffness[4] == stiffness[5];
}

class Supports {
 public:
    explicit Supports(Model& model)
        : model_(model),
          structure_(model.structure),
          onPoints_(Records<TMRAppuiPonctuel>(model.source.reader)),
          onLines_(Records<TMRAppuiLineaire>(model.source.reader)),
          onSurfaces_(Records<TMRAppuiSurfacique>(model.source.reader))
    {
    }

    void Write()
    {
        for (std::size_t i = 0; i < structure_.supports.size(); ++i) {
            const Support& support = structure_.supports[i];
            model_.report.steps.Do();
            if (!model_.Takes(support)) continue;
            if (!support.isUsable || support.cornerCount == 0) {
                model_.Lose(support, kUnusable);
                continue;
            }
            if (support.condition == SupportCondition::kRigid) model_.Lose(support, kRigid);
            if (support.condition == SupportCondition::kStop) model_.Lose(support, kStop);
            const auto rank = static_cast<LONG>(support.rank);
            if (support.kind == Kind::kPointSupport) {
                WritePoint(support, *onPoints_.At(rank));
            } else if (support.kind == Kind::kLineSupport) {
                WriteLine(i, *onLines_.At(rank));
            } else {
                WriteSurface(i, *onSurfaces_.At(rank));
            }
        }
    }

 private:
    template <class PublicRecord>
    void CountLosses(const Support& support, const PublicRecord& record)
    {
        const bool hasDamping =
            std::any_of(std::begin(record.Amortissements), std::end(record.Amortissements),
                        [](double value) { return value != 0; });
        bool hasArea = false;
        if constexpr (requires { record.Surface; }) hasArea = record.Surface != 0;
        if (hasDamping || hasArea || record.GroupNumber != 0) model_.Lose(support, kDamping);
    }

    void WritePoint(const Support& support, const TMRAppuiPonctuel& record)
    {
        CountLosses(support, record);
        Stiffness stiffness = support.stiffness;
        const Point* const orientation = model_.NodeAt(support.orientationNode);
        if (!TurnToModel(FrameOfSupport(record, orientation), stiffness) &&
            !IsTheSameAllAround(stiffness)) {
            model_.Lose(support, kTurned);
        }
        Row row;
        row.Text(NameOfElement(model_, pointNames_, support, record.ElemLabels, "Sn"));
        row.Text("Custom").Text("In node");
        row.Text(model_.PointName(structure_.corners[support.firstCorner]));
        AddFreedoms(row, support.condition, stiffness);
        row.Text(model_.ids.Take(Kind::kPointSupport, support.identifier));
        model_.book.Add(model_.layouts.pointSupport, row);
    }

    // What touches the points that it holds.
    std::vector<Member> CandidatesOf(std::size_t place) const
    {
        std::vector<Member> more;
        for (const Index point : structure_.heldPoints[place]) {
            const auto members = structure_.membersAt[point];
            if (members.size() > Structure::kMostCarriersOfPoint) continue;
            more.insert(more.end(), members.begin(), members.end());
        }
        return CandidatesFor(model_, structure_.supports[place], more);
    }

    void WriteLine(std::size_t place, const TMRAppuiLineaire& record)
    {
        const Support& support = structure_.supports[place];
        const auto corners = structure_.CornersOf(support);
        if (corners[0] == corners[1]) return model_.Lose(support, kOnNothing);
        const Segment line = structure_.SegmentOf(support);
        const std::vector<Member> candidates = CandidatesOf(place);
        Pieces pieces = BarsAlong(model_, line, candidates);
        const bool isOnBars = !pieces.pieces.empty();
        if (!isOnBars) pieces = EdgesAlong(model_, line, candidates);
        const auto within = pieces.pieces.empty() ? SurfaceWith(model_, support) : std::nullopt;
        if (pieces.pieces.empty() && !within) return model_.Lose(support, kOnNothing);
        CountLosses(support, record);
        if (record.Angle != 0) model_.Lose(support, kLineAngle);
        const std::string name =
            NameOfElement(model_, lineNames_, support, record.ElemLabels, "Sl");
        if (within) return WriteWithin(support, *within, name);
        if (!pieces.gaps.empty()) model_.Lose(support, kPartOfLine);
        int part = 0;
        for (const Piece& piece : pieces.pieces) {
            Row row;
            row.Text(part == 0 ? name : lineNames_.Take("", name + '-' + std::to_string(part + 1)));
            row.Text("Custom");
            if (isOnBars) {
                row.Text(model_.bars[piece.member]);
            } else {
                row.Text("On edge").Text(model_.surfaces[piece.member]);
                row.Whole(std::int64_t{piece.edge} + 1).Skip();
            }
            AddFreedoms(row, support.condition, support.stiffness).Text("Global");
            row.Text("Absolute").Text("From start");
            row.Number(std::min(piece.first, piece.last)).Number(std::max(piece.first, piece.last));
            row.Skip().Text(model_.ids.Take(Kind::kLineSupport, support.identifier, part++));
            model_.book.Add(isOnBars ? model_.layouts.barSupport : model_.layouts.edgeSupport, row);
        }
    }

    void WriteWithin(const Support& support, Index surface, const std::string& name)
    {
        const std::string edge =
            model_.innerEdges.Take("", "IE" + std::to_string(support.identifier));
        AddInnerEdge(model_, support, surface, edge);
        Row row;
        row.Text(name).Text("Custom").Text("On internal edge").Text(model_.surfaces[surface]);
        row.Skip().Text(edge);
        AddFreedoms(row, support.condition, support.stiffness).Text("Global");
        row.Text("Relative").Text("From start").Number(0).Number(1);
        row.Skip().Text(model_.ids.Take(Kind::kLineSupport, support.identifier));
        model_.book.Add(model_.layouts.edgeSupport, row);
    }

    void WriteSurface(std::size_t place, const TMRAppuiSurfacique& record)
    {
        const Support& support = structure_.supports[place];
        const std::vector<Point> outline = OutlineOf(structure_, support);
        const Polygon polygon(outline);
        int part = 0;
        std::string name;
        for (const Member& member : CandidatesOf(place)) {
            if (member.kind != Kind::kSurface || !Covers(polygon, member.index)) continue;
            if (part == 0) {
                CountLosses(support, record);
                model_.Lose(support, kPlateAxes);
                const auto& k = support.stiffness;
                if (k[3] != 0 || k[4] != 0 || k[5] != 0) model_.Lose(support, kRotations);
                name = NameOfElement(model_, surfaceNames_, support, record.ElemLabels, "Ss");
            }
            AddSurface(
                support, member.index,
                part == 0 ? name : surfaceNames_.Take("", name + '-' + std::to_string(part + 1)),
                part);
            ++part;
        }
        if (part == 0) model_.Lose(support, kNotWhole);
    }

    bool Covers(const Polygon& polygon, Index surface)
    {
        const std::vector<Point> corners = OutlineOf(structure_, structure_.surfaces[surface]);
        return model_.steps.Spend(corners.size() * polygon.Size()) &&
               std::all_of(corners.begin(), corners.end(), [&](Point corner) {
                   return polygon.Contains(corner, structure_.tolerance);
               });
    }

    void AddSurface(const Support& support, Index surface, const std::string& name, int part)
    {
        const Point normal = structure_.surfaces[surface].plane.normal;
        const double parts[] = {std::abs(normal.x), std::abs(normal.y), std::abs(normal.z)};
        const auto across = static_cast<std::size_t>(
            std::max_element(std::begin(parts), std::end(parts)) - std::begin(parts));
        Row row;
        row.Text(name).Text(model_.surfaces[surface]).Skip().Text("Soil").Skip();
        row.Number(support.stiffness[(across + 1) % 3] * 1e-6);
        row.Number(support.stiffness[(across + 2) % 3] * 1e-6);
        row.Text("Linear").Number(support.stiffness[across] * 1e-6).Number(0).Number(0);
        row.Skip().Text(model_.ids.Take(Kind::kSurfaceSupport, support.identifier, part));
        model_.book.Add(model_.layouts.surfaceSupport, row);
    }

    Model& model_;
    const Structure& structure_;
    Range<TMRAppuiPonctuel> onPoints_;
    Range<TMRAppuiLineaire> onLines_;
    Range<TMRAppuiSurfacique> onSurfaces_;
    Names pointNames_, lineNames_, surfaceNames_;
};

}  // namespace

void WriteSupports(Model& model)
{
    Supports(model).Write();
}

}  // namespace tamur::host::saf
