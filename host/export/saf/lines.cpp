#include "host/export/saf/lines.h"

#include <algorithm>

#include "host/export/saf/labels.h"

namespace tamur::host::saf {
namespace {

// Of very many members at a point only so many are looked at.
constexpr std::size_t kMost = Structure::kMostCarriersOfPoint;

// Gathers the pieces of one line.
class Gatherer {
 public:
    Gatherer(const Segment& line, double tolerance) : line_(line), tolerance_(tolerance) {}

    void Add(Index member, Index edge, const Segment& segment)
    {
        const Point along = line_.end - line_.start;
        const double square = Dot(along, along);
        if (!(square > 0)) return;
        const auto placeOf = [&](Point point) { return Dot(point - line_.start, along) / square; };
        const double start = placeOf(segment.start), end = placeOf(segment.end);
        const double from = std::max(std::min(start, end), 0.0);
        const double to = std::min(std::max(start, end), 1.0);
        if (!((to - from) * line_.Length() > tolerance_)) return;
        if (IsOff(segment, line_.At(from)) || IsOff(segment, line_.At(to))) return;
        found_.push_back({member, edge, from, to, 0, 0});
        segments_.push_back(segment);
    }

    Pieces Finish()
    {
        std::vector<std::size_t> order(found_.size());
        for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return found_[a].from < found_[b].from;
        });
        Pieces result;
        double done = 0;
        const double smallest = tolerance_ / line_.Length();
        for (const std::size_t each : order) {
            Piece piece = found_[each];
            if (piece.from > done + smallest) result.gaps.emplace_back(done, piece.from);
            piece.from = piece.from > done + smallest ? piece.from : done;
            if (piece.to <= piece.from + smallest) continue;
            if (piece.to > 1 - smallest) piece.to = 1;
            const Segment& segment = segments_[each];
            piece.first = FootOn(segment, line_.At(piece.from)) * segment.Length();
            piece.last = FootOn(segment, line_.At(piece.to)) * segment.Length();
            done = piece.to;
            result.pieces.push_back(piece);
        }
        if (done < 1 - smallest) result.gaps.emplace_back(done, 1);
        return result;
    }

 private:
    [[nodiscard]] bool IsOff(const Segment& segment, Point point) const
    {
        return Distance(segment, point) > tolerance_;
    }

    Segment line_;
    double tolerance_;
    std::vector<Piece> found_;
    std::vector<Segment> segments_;
};

bool IsWritten(const Model& model, Member member)
{
    return !(member.kind == Kind::kBar ? model.bars : model.surfaces)[member.index].empty();
}

}  // namespace

std::vector<Member> CandidatesFor(const Model& model, const Element& line,
                                  std::span<const Member> more)
{
    std::vector<Member> all;
    const auto add = [&](std::span<const Member> members) {
        for (const Member& member : members.first(std::min(members.size(), kMost))) {
            if (IsWritten(model, member)) all.push_back(member);
        }
    };
    for (const Index corner : model.structure.CornersOf(line)) {
        if (corner != kNone) add(model.structure.membersAt[corner]);
    }
    for (const Member& member : more) add(std::span(&member, 1));
    std::sort(all.begin(), all.end(), [](const Member& a, const Member& b) {
        return a.kind != b.kind ? a.kind < b.kind : a.index < b.index;
    });
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

Pieces BarsAlong(const Model& model, const Segment& line, std::span<const Member> candidates)
{
    const Structure& structure = model.structure;
    Gatherer gatherer(line, structure.tolerance);
    for (const Member& member : candidates) {
        if (member.kind != Kind::kBar) continue;
        gatherer.Add(member.index, 0, structure.SegmentOf(structure.bars[member.index]));
    }
    return gatherer.Finish();
}

Pieces EdgesAlong(Model& model, const Segment& line, std::span<const Member> candidates)
{
    const Structure& structure = model.structure;
    Gatherer gatherer(line, structure.tolerance);
    for (const Member& member : candidates) {
        const Element& surface = structure.ElementOf(member);
        if (member.kind != Kind::kSurface || !model.steps.Spend(surface.cornerCount)) continue;
        // As they are numbered in the sheet of surfaces.
        const std::vector<Index> corners = DistinctCorners(structure, surface);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Index next = corners[i + 1 < corners.size() ? i + 1 : 0];
            gatherer.Add(member.index, static_cast<Index>(i),
                         {structure.points[corners[i]], structure.points[next]});
        }
    }
    return gatherer.Finish();
}

std::optional<Index> SurfaceWith(Model& model, const Element& line)
{
    const Structure& structure = model.structure;
    const auto corners = structure.CornersOf(line);
    if (!line.isUsable || corners.size() < 2 || corners[0] == corners[1]) return std::nullopt;
    const auto first = structure.membersAt[corners[0]], last = structure.membersAt[corners[1]];
    if (!model.steps.Spend(first.size() * last.size())) return std::nullopt;
    for (const Member& member : first) {
        if (member.kind == Kind::kSurface && IsWritten(model, member) &&
            std::find(last.begin(), last.end(), member) != last.end()) {
            return member.index;
        }
    }
    return std::nullopt;
}

void AddInnerEdge(Model& model, const Element& line, Index surface, const std::string& name)
{
    const auto corners = model.structure.CornersOf(line);
    Row row;
    row.Text(name).Text(model.surfaces[surface]);
    row.Text(model.PointName(corners[0]) + "; " + model.PointName(corners[1])).Text("Line");
    row.Skip().Text(model.ids.Take(line.kind, line.identifier, 4095));
    model.book.Add(model.layouts.innerEdge, row);
}

}  // namespace tamur::host::saf
