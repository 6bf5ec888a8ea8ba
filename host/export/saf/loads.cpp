#include <tamur/ranges.h>

#include <array>
#include <cmath>

#include "host/export/saf/labels.h"
#include "host/export/saf/lines.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kUnusableLoad = {
    LossType::kNot, {"the coordinates cannot be meant", "les coordonnées sont impossibles"}};
constexpr LossText kNothing = {LossType::kNot,
                               {"all its values are 0", "toutes ses valeurs sont nulles"}};
constexpr LossText kFreeMoments = {
    LossType::kPartly,
    {"moments along a line without a bar cannot be said",
     "les moments le long d'une ligne sans filaire ne peuvent pas être dits"}};
constexpr LossText kFree = {
    LossType::kPartly,
    {"what lies along no bar is a free load on surfaces",
     "ce qui n'est pas le long d'un filaire est une charge libre sur les surfaciques"}};
constexpr LossText kTurnedLoad = {
    LossType::kPartly,
    {"local components are written along the axes of the model",
     "les composantes locales sont écrites selon les axes du modèle"}};
constexpr LossText kProjected = {
    LossType::kAssumed,
    {"a projected load is per length or area of its projection along its direction",
     "une charge projetée est par longueur ou aire de sa projection selon sa direction"}};
constexpr LossText kIntensity = {
    LossType::kAssumed,
    {"the forces and moments are a direction that the intensities multiply",
     "les forces et moments sont une direction que multiplient les intensités"}};
constexpr LossText kNoLoadPolygon = {
    LossType::kNot,
    {"an outline without an area, or with more corners than a cell "
     "holds",
     "un contour sans aire, ou de plus de points qu'une cellule n'en "
     "contient"}};

constexpr std::array<const char*, 3> kDirections = {"X", "Y", "Z"};
constexpr std::array<const char*, 3> kMomentDirections = {"Mx", "My", "Mz"};

std::array<double, 3> PartsOf(Point point)
{
    return {point.x, point.y, point.z};
}

class Loads {
 public:
    explicit Loads(Model& model)
        : model_(model),
          structure_(model.structure),
          bars_(Records<TMRFilaire>(model.source.reader)),
          onLines_(Records<TMRChargeLineaire>(model.source.reader)),
          onSurfaces_(Records<TMRChargeSurfacique>(model.source.reader))
    {
    }

    void Write()
    {
        for (std::size_t i = 0; i < structure_.loads.size(); ++i) {
            const Load& load = structure_.loads[i];
            model_.report.steps.Do();
            if (!model_.Takes(load)) continue;
            if (!load.isUsable || load.cornerCount == 0) {
                model_.Lose(load, kUnusableLoad);
                continue;
            }
            const auto loadCase = model_.cases.find(load.loadCase);
            if (loadCase == model_.cases.end()) {
                model_.Lose(load, kLoadWithoutCase);
                continue;
            }
            Begin(load, loadCase->second);
            if (load.kind == Kind::kPointLoad) {
                WritePoint(i);
            } else if (load.kind == Kind::kLineLoad) {
                WriteLine(i);
            } else {
                WriteSurface(i);
            }
            if (part_ == 0 && !isLost_) model_.Lose(load, kNothing);
        }
    }

 private:
    // Further rows are made of the load: a name and an identifier for each.
    void Begin(const Load& load, const std::string& loadCase)
    {
        load_ = &load;
        case_ = loadCase;
        part_ = 0;
        isLost_ = false;
    }
    void LoseWhole(const LossText& text)
    {
        model_.Lose(*load_, text);
        isLost_ = true;
    }
    std::string NextName(const char* letter)
    {
        const std::string first = letter + std::to_string(load_->identifier);
        ++part_;
        return names_.Take("", part_ == 1 ? first : first + '.' + std::to_string(part_));
    }
    std::string NextId() { return model_.ids.Take(load_->kind, load_->identifier, part_ - 1); }

    [[nodiscard]] Point Forces() const
    {
        return {load_->values[0], load_->values[1], load_->values[2]};
    }
    [[nodiscard]] Point Moments() const
    {
        return {load_->values[3], load_->values[4], load_->values[5]};
    }

    // The axes of the first thing that it lies on.
    std::optional<Frame> LocalFrame(std::size_t place)
    {
        if (structure_.carriers[place].empty()) return std::nullopt;
        const Member member = structure_.carriers[place].front();
        if (member.kind == Kind::kBar) return FrameOfBar(member.index);
        return FrameOfPolygon(OutlineOf(structure_, structure_.surfaces[member.index]));
    }
    std::optional<Frame> FrameOfBar(Index index)
    {
        const Bar& bar = structure_.bars[index];
        const auto record = bars_.At(static_cast<LONG>(bar.rank));
        return host::FrameOfBar(*record, model_.NodeAt(bar.orientationNode));
    }

    void WritePoint(std::size_t place)
    {
        std::optional<Frame> local;
        if (load_->frame == TMR_FORCE_LOCAL) {
            local = LocalFrame(place);
            if (local) model_.Lose(*load_, kTurnedLoad);
        }
        const Frame frame = FrameOfLoad(load_->frame, local);
        const auto forces = PartsOf(frame.ToGlobal(Forces()));
        const auto moments = PartsOf(frame.ToGlobal(Moments()));
        for (std::size_t i = 0; i < 3; ++i) {
            AddPoint(model_.layouts.pointAction, kDirections[i], forces[i]);
        }
        for (std::size_t i = 0; i < 3; ++i) {
            AddPoint(model_.layouts.pointMoment, kMomentDirections[i], moments[i]);
        }
    }

    void AddPoint(const Layout& layout, const char* direction, double value)
    {
        if (value == 0) return;
        Row row;
        row.Text(NextName("F")).Text("Standard").Text(direction).Text("In node");
        row.Text(model_.PointName(structure_.corners[load_->firstCorner]));
        row.Number(value * 1e-3).Text(case_).Text("Global").Text(NextId());
        model_.book.Add(layout, row);
    }

    void WriteLine(std::size_t place)
    {
        const auto corners = structure_.CornersOf(*load_);
        if (corners[0] == corners[1]) return LoseWhole(kNoLoadPolygon);
        model_.Lose(*load_, kIntensity);
        if (load_->frame == TMR_FORCE_PROJETE) model_.Lose(*load_, kProjected);
        const auto record = onLines_.At(static_cast<LONG>(load_->rank));
        const Segment line = structure_.SegmentOf(*load_);
        const auto candidates = CandidatesFor(model_, *load_, structure_.carriers[place]);
        const Pieces pieces = BarsAlong(model_, line, candidates);
        const auto intensityAt = [&record](double where) {
            return record->intensityDebut + (record->intensityFin - record->intensityDebut) * where;
        };
        for (const Piece& piece : pieces.pieces) {
            const double from = intensityAt(piece.from), to = intensityAt(piece.to);
            const bool isReversed = piece.first > piece.last;
            AddAlong(piece, isReversed ? to : from, isReversed ? from : to);
        }
        const int partsOnBars = part_;
        for (const auto& [from, to] : pieces.gaps) {
            AddFree(place, {line.At(from), line.At(to)}, intensityAt(from), intensityAt(to));
        }
        if (part_ > partsOnBars) model_.Lose(*load_, kFree);
    }

    [[nodiscard]] const char* LocationOf() const
    {
        return load_->frame == TMR_FORCE_PROJETE ? "Projection" : "Length";
    }

    void AddAlong(const Piece& piece, double first, double last)
    {
        const auto forces = PartsOf(Forces()), moments = PartsOf(Moments());
        for (std::size_t i = 0; i < 3; ++i) {
            AddAlong(model_.layouts.lineAction, piece, kDirections[i], forces[i] * first,
                     forces[i] * last);
        }
        for (std::size_t i = 0; i < 3; ++i) {
            AddAlong(model_.layouts.lineMoment, piece, kMomentDirections[i], moments[i] * first,
                     moments[i] * last);
        }
    }

    void AddAlong(const Layout& layout, const Piece& piece, const char* direction, double first,
                  double last)
    {
        if (first == 0 && last == 0) return;
        const bool isLocal = load_->frame == TMR_FORCE_LOCAL;
        Row row;
        row.Text(NextName("LF")).Text("Standard").Text("On beam");
        AddValues(row, direction, first, last);
        row.Text(model_.bars[piece.member]).Text(case_).Text(isLocal ? "Local" : "Global");
        row.Text(LocationOf()).Text("Absolute").Text("From start").Text("Span");
        row.Number(std::min(piece.first, piece.last)).Number(std::max(piece.first, piece.last));
        if (&layout == &model_.layouts.lineAction) row.Number(0).Number(0);
        row.Skip().Text(NextId());
        model_.book.Add(layout, row);
    }

    static void AddValues(Row& row, const char* direction, double first, double last)
    {
        row.Text(first == last ? "Uniform" : "Trapez").Text(direction).Number(first * 1e-3);
        if (first == last) {
            row.Skip();
        } else {
            row.Number(last * 1e-3);
        }
    }

    // The forces in a frame that free loads have.
    Point FreeForces(std::size_t place, const std::optional<Frame>& own)
    {
        if (load_->frame != TMR_FORCE_LOCAL) return Forces();
        model_.Lose(*load_, kTurnedLoad);
        const std::optional<Frame> local = LocalFrame(place);
        return FrameOfLoad(load_->frame, local ? local : own).ToGlobal(Forces());
    }

    void AddFree(std::size_t place, const Segment& line, double first, double last)
    {
        if (Length(Moments()) != 0) model_.Lose(*load_, kFreeMoments);
        const auto forces = PartsOf(FreeForces(place, FrameOfAxis(line)));
        for (std::size_t i = 0; i < 3; ++i) {
            const double from = forces[i] * first, to = forces[i] * last;
            if (from == 0 && to == 0) continue;
            Row row;
            row.Text(NextName("LF")).Text("Standard");
            AddValues(row, kDirections[i], from, to);
            row.Text(case_);
            AddCoordinates(row, std::array{line.start, line.end});
            row.Text("Line").Text("Global").Text(LocationOf()).Text(NextId());
            model_.book.Add(model_.layouts.freeLineAction, row);
        }
    }

    // "0;5;4" for each axis.
    static void AddCoordinates(Row& row, std::span<const Point> points)
    {
        std::array<std::string, 3> lists;
        for (const Point& point : points) {
            const auto parts = PartsOf(point);
            for (std::size_t i = 0; i < 3; ++i) AddToList(lists[i], Plain(parts[i]));
        }
        for (std::string& list : lists) row.Text(std::move(list));
    }

    void WriteSurface(std::size_t place)
    {
        const std::vector<Point> corners = OutlineOf(structure_, *load_);
        const auto own = FrameOfPolygon(corners);
        constexpr std::size_t kMostCorners = 1000;  // their coordinates fill a cell
        if (!own || corners.size() > kMostCorners) return LoseWhole(kNoLoadPolygon);
        model_.Lose(*load_, kIntensity);
        if (load_->frame == TMR_FORCE_PROJETE) model_.Lose(*load_, kProjected);
        const auto record = onSurfaces_.At(static_cast<LONG>(load_->rank));
        const std::array intensities = {record->intensiteI, record->intensiteJ, record->intensiteK};
        const auto forces = PartsOf(FreeForces(place, own));
        for (std::size_t i = 0; i < 3; ++i) {
            if (forces[i] == 0) continue;
            AddSurface(kDirections[i], forces[i], intensities, corners);
        }
    }

    void AddSurface(const char* direction, double force, std::array<double, 3> intensities,
                    const std::vector<Point>& corners)
    {
        // Three corners on a line define no plane: their mean counts.
        const Point across = Cross(corners[1] - corners[0], corners[2] - corners[0]);
        if (!(Dot(across, across) > 0)) {
            intensities.fill((intensities[0] + intensities[1] + intensities[2]) / 3);
        }
        const bool isUniform = intensities[0] == intensities[1] && intensities[1] == intensities[2];
        if (isUniform && intensities[0] == 0) return;
        Row row;
        row.Text(NextName("SF")).Text(direction).Text("Standard");
        row.Text(isUniform ? "Uniform" : "DirectionXY");
        if (isUniform) {
            row.Number(force * intensities[0] * 1e-3);
        } else {
            std::string q;
            for (std::size_t i = 0; i < 3; ++i) {
                AddToList(q,
                          "C" + std::to_string(i + 1) + ":" + Plain(force * intensities[i] * 1e-3));
            }
            row.Text(std::move(q));
        }
        row.Text(case_);
        AddCoordinates(row, corners);
        std::string edges;
        for (std::size_t i = 0; i < corners.size(); ++i) AddToList(edges, "Line");
        row.Text(std::move(edges)).Text("Global").Text(LocationOf()).Text(NextId());
        model_.book.Add(model_.layouts.freeSurfaceAction, row);
    }

    Model& model_;
    const Structure& structure_;
    Range<TMRFilaire> bars_;
    Range<TMRChargeLineaire> onLines_;
    Range<TMRChargeSurfacique> onSurfaces_;
    Names names_;
    const Load* load_ = nullptr;
    std::string case_;
    int part_ = 0;
    bool isLost_ = false;
};

}  // namespace

void WriteLoads(Model& model)
{
    Loads(model).Write();
}

}  // namespace tamur::host::saf
