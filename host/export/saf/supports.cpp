#include <tamur/ranges.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "host/export/saf/labels.h"
#include "host/export/saf/lines.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kSupportDamping = {
    LossType::kPartly,
    {"damping and bearing areas have no columns; supports have no layers for their groups",
     "les amortissements et aires d'appui n'ont pas de colonnes, ni les groupes d'appuis de "
     "calques"}};
constexpr LossText kTurnedSupport = {
    LossType::kPartly,
    {"supports of nodes are along the axes of the model: one that is turned by less than a quarter "
     "is written unturned",
     "les appuis de nœuds suivent les axes du modèle : celui qui est tourné de moins d'un quart de "
     "tour est écrit non tourné"}};
constexpr LossText kLineAngle = {LossType::kPartly,
                                 {"angles of line supports are not written",
                                  "les angles d'appuis linéaires ne sont pas écrits"}};
constexpr LossText kUnusableSupport = {
    LossType::kNot, {"the coordinates cannot be meant", "les coordonnées sont impossibles"}};
constexpr LossText kOnNothing = {
    LossType::kNot,
    {"a line support that lies on no bar, edge or surface that is written",
     "un appui linéaire qui n'est sur aucun filaire, bord ou surfacique écrit"}};
constexpr LossText kPartOfLine = {
    LossType::kPartly,
    {"a part of the line lies on no bar and on no edge: it is not written",
     "une partie de la ligne n'est sur aucun filaire ni bord : elle n'est pas écrite"}};
constexpr LossText kPartNotKnown = {
    LossType::kPartly,
    {"too much lies in one place, or has too many corners: what was not found is not written",
     "trop d'éléments au même endroit, ou trop de points : ce qui n'a pas été trouvé n'est pas "
     "écrit"}};
constexpr LossText kNotWhole = {LossType::kNot,
                                {"a surface support that covers no whole surface",
                                 "un appui surfacique qui ne couvre aucun surfacique entier"}};
constexpr LossText kPartOfSurface = {
    LossType::kPartly,
    {"a part of the area covers no whole surface: it is not written",
     "une partie de l'aire ne couvre aucun surfacique entier : elle n'est pas écrite"}};
constexpr LossText kHeldSurface = {
    LossType::kNot,
    {"a surface support that is rigid without a finite stiffness: under surfaces the format has "
     "springs only",
     "un appui surfacique rigide sans raideur finie : sous les surfaciques, le format n'a que des "
     "ressorts"}};
constexpr LossText kRigidSurface = {
    LossType::kPartly,
    {"a rigid surface support is written as springs of its stiffnesses",
     "un appui surfacique rigide est écrit comme des ressorts de ses raideurs"}};
constexpr LossText kStopSurface = {
    LossType::kPartly,
    {"a stop (butée) under a surface is written as springs of its stiffnesses, which hold upwards "
     "too",
     "une butée sous un surfacique est écrite comme des ressorts de ses raideurs, qui retiennent "
     "aussi vers le haut"}};
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

enum class Hold : std::uint8_t { kReleased, kFlexible, kHeld, kHeldDownwards };
using Holds = std::array<Hold, 6>;

// What a support does to the six freedoms.
Holds HoldsOf(SupportCondition condition, const Stiffness& stiffness)
{
    constexpr std::size_t kVerticalMove = 2;
    Holds holds = {};
    if (condition == SupportCondition::kVoid) return holds;
    const bool isElastic = condition == SupportCondition::kElastic;
    const bool isAny =
        std::any_of(stiffness.begin(), stiffness.end(), [](double value) { return value != 0; });
    for (std::size_t i = 0; i < holds.size(); ++i) {
        const bool isHeld = stiffness[i] != 0 || (!isAny && i < 3 && !isElastic);
        if (!isHeld) continue;
        if (isElastic && std::isfinite(stiffness[i])) {
            holds[i] = Hold::kFlexible;
        } else if (condition == SupportCondition::kStop && i == kVerticalMove) {
            holds[i] = Hold::kHeldDownwards;
        } else {
            holds[i] = Hold::kHeld;
        }
    }
    return holds;
}

// The words for the six freedoms and what is flexible, in MN and m.
Row& AddFreedoms(Row& row, SupportCondition condition, const Stiffness& stiffness)
{
    constexpr const char* kWords[] = {"Free", "Flexible", "Rigid", "Compression only"};
    const Holds holds = HoldsOf(condition, stiffness);
    for (const Hold hold : holds) row.Text(kWords[static_cast<std::size_t>(hold)]);
    for (std::size_t i = 0; i < stiffness.size(); ++i) {
        if (holds[i] == Hold::kFlexible) {
            row.Number(stiffness[i] * 1e-6);
        } else {
            row.Skip();
        }
    }
    return row;
}

// The stiffnesses of translations under a surface, in MN and m; nothing when they cannot say that
// it holds.
std::optional<std::array<double, 3>> SpringsOf(const Holds& holds, const Stiffness& stiffness)
{
    std::array<double, 3> springs = {};
    for (std::size_t i = 0; i < springs.size(); ++i) {
        if (holds[i] == Hold::kReleased) continue;
        if (stiffness[i] == 0 || !std::isfinite(stiffness[i])) return std::nullopt;
        springs[i] = stiffness[i] * 1e-6;
    }
    return springs;
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
                model_.Lose(support, kUnusableSupport);
                continue;
            }
            if (support.kind != Kind::kSurfaceSupport) CountAssumptions(support);
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
        if (hasDamping || hasArea || record.GroupNumber != 0) model_.Lose(support, kSupportDamping);
    }

    void CountAssumptions(const Support& support)
    {
        if (support.condition == SupportCondition::kRigid) model_.Lose(support, kRigid);
        if (support.condition == SupportCondition::kStop) model_.Lose(support, kStop);
    }

    void WritePoint(const Support& support, const TMRAppuiPonctuel& record)
    {
        CountLosses(support, record);
        Stiffness stiffness = support.stiffness;
        const Point* const orientation = model_.NodeAt(support.orientationNode);
        if (!TurnToModel(FrameOfSupport(record, orientation), stiffness) &&
            !IsTheSameAllAround(stiffness)) {
            model_.Lose(support, kTurnedSupport);
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
        if (pieces.pieces.empty() && !within) {
            return model_.Lose(support, model_.steps.IsSpent() ? kSearchEnded : kOnNothing);
        }
        CountLosses(support, record);
        if (record.Angle != 0) model_.Lose(support, kLineAngle);
        const std::string name =
            NameOfElement(model_, lineNames_, support, record.ElemLabels, "Sl");
        if (within) return WriteWithin(support, *within, name);
        if (!pieces.gaps.empty()) {
            const bool isKnown = isOnBars || !model_.steps.IsSpent();
            model_.Lose(support, isKnown ? kPartOfLine : kPartNotKnown);
        }
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
        const Holds holds = HoldsOf(support.condition, support.stiffness);
        const auto springs = SpringsOf(holds, support.stiffness);
        if (!springs) return model_.Lose(support, kHeldSurface);
        const std::vector<Point> outline = OutlineOf(structure_, support);
        const Polygon polygon(outline);
        std::vector<Index> covered;
        double area = 0;
        for (const Member& member : CandidatesOf(place)) {
            if (member.kind != Kind::kSurface || !Covers(polygon, member.index)) continue;
            covered.push_back(member.index);
            area += structure_.surfaces[member.index].area;
        }
        const bool isKnown = !model_.steps.IsSpent();
        if (covered.empty()) return model_.Lose(support, isKnown ? kNotWhole : kSearchEnded);
        // As much as the corners may be away from each other's.
        const double slack = structure_.tolerance * polygon.Perimeter();
        if (area < polygon.Area() - slack) {
            model_.Lose(support, isKnown ? kPartOfSurface : kPartNotKnown);
        }
        CountLosses(support, record);
        CountSurfaceLosses(support, holds);
        const std::string name =
            NameOfElement(model_, surfaceNames_, support, record.ElemLabels, "Ss");
        for (int part = 0; part < static_cast<int>(covered.size()); ++part) {
            AddSurface(
                support, covered[static_cast<std::size_t>(part)], *springs,
                part == 0 ? name : surfaceNames_.Take("", name + '-' + std::to_string(part + 1)),
                part);
        }
    }

    void CountSurfaceLosses(const Support& support, const Holds& holds)
    {
        model_.Lose(support, kPlateAxes);
        if (support.condition == SupportCondition::kRigid) model_.Lose(support, kRigidSurface);
        if (support.condition == SupportCondition::kStop) model_.Lose(support, kStopSurface);
        if (std::any_of(holds.begin() + 3, holds.end(),
                        [](Hold hold) { return hold != Hold::kReleased; })) {
            model_.Lose(support, kRotations);
        }
    }

    bool Covers(const Polygon& polygon, Index surface)
    {
        const std::vector<Point> corners = OutlineOf(structure_, structure_.surfaces[surface]);
        return model_.steps.Spend(corners.size() * polygon.Size()) &&
               std::all_of(corners.begin(), corners.end(), [&](Point corner) {
                   return polygon.Contains(corner, structure_.tolerance);
               });
    }

    void AddSurface(const Support& support, Index surface, const std::array<double, 3>& springs,
                    const std::string& name, int part)
    {
        const Point normal = structure_.surfaces[surface].plane.normal;
        const double parts[] = {std::abs(normal.x), std::abs(normal.y), std::abs(normal.z)};
        const auto across = static_cast<std::size_t>(
            std::max_element(std::begin(parts), std::end(parts)) - std::begin(parts));
        Row row;
        row.Text(name).Text(model_.surfaces[surface]).Skip().Text("Soil").Skip();
        row.Number(springs[(across + 1) % 3]).Number(springs[(across + 2) % 3]);
        row.Text("Linear").Number(springs[across]).Number(0).Number(0);
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
