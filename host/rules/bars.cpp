// Bars beside, on and through each other.
#include <algorithm>
#include <bit>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

// The same two points, in either sense: sorted by them, then by identifier.
struct Ends {
    std::uint64_t points;
    std::int64_t identifier;
    Index bar;
};

std::uint64_t PointsOf(const Bar& bar)
{
    return std::uint64_t{std::min(bar.start, bar.end)} << 32 | std::max(bar.start, bar.end);
}

// Whether any have, which costs less than sorting them.
bool IsAnyTwice(const Structure& structure)
{
    const std::size_t mask = std::bit_ceil(2 * structure.bars.size() + 1) - 1;
    std::vector<std::uint64_t> seen(mask + 1, ~std::uint64_t{0});
    for (const Bar& bar : structure.bars) {
        if (!bar.isUsable || bar.start == bar.end) continue;
        const std::uint64_t points = PointsOf(bar);
        std::size_t slot = (points * 0x9E3779B97F4A7C15 >> 32) & mask;
        while (seen[slot] != ~std::uint64_t{0}) {
            if (seen[slot] == points) return true;
            slot = (slot + 1) & mask;
        }
        seen[slot] = points;
    }
    return false;
}

std::vector<Ends> EndsOf(const Structure& structure)
{
    std::vector<Ends> ends;
    if (!IsAnyTwice(structure)) return ends;
    ends.reserve(structure.bars.size());
    for (Index i = 0; i < structure.bars.size(); ++i) {
        const Bar& bar = structure.bars[i];
        if (!bar.isUsable || bar.start == bar.end) continue;
        ends.push_back({PointsOf(bar), bar.identifier, i});
    }
    std::sort(ends.begin(), ends.end(), [](const Ends& a, const Ends& b) {
        return a.points != b.points ? a.points < b.points : a.identifier < b.identifier;
    });
    return ends;
}

// How far two bars lie on each other, one of which ends at a stop of the other.
double OverlapOf(const Segment& first, const Segment& second)
{
    const Point along = first.end - first.start;
    const double length = Length(along);
    const Point direction = along * (1 / length);
    const double a = Dot(second.start - first.start, direction);
    const double b = Dot(second.end - first.start, direction);
    return std::min(std::max(a, b), length) - std::max(std::min(a, b), 0.0);
}

bool AreAlong(const Segment& first, const Segment& second, double tolerance)
{
    // The other's ends, where they are beside the first, and the first's where they are not.
    const auto isOn = [tolerance](const Segment& line, Point point) {
        const Point along = line.end - line.start;
        return Length(Cross(point - line.start, along)) <= tolerance * Length(along);
    };
    return first.Length() >= second.Length() ? isOn(first, second.start) && isOn(first, second.end)
                                             : isOn(second, first.start) && isOn(second, first.end);
}

// A pair whose ends are the same is a duplicate, and said to be that.
bool HaveSameEnds(const Bar& a, const Bar& b)
{
    return (a.start == b.start && a.end == b.end) || (a.start == b.end && a.end == b.start);
}

}  // namespace

void CheckSameBars(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    const std::vector<Ends> ends = EndsOf(structure);
    std::size_t first = 0;
    for (std::size_t i = 1; i < ends.size(); ++i) {
        if (ends[i].points != ends[first].points) {
            first = i;
            continue;
        }
        // Of the same record twice the identifier is said.
        if (ends[i].identifier == ends[i - 1].identifier) continue;
        report.Add(Code::kDuplicateBar, structure.bars[ends[i].bar],
                   [&] { return Values{std::to_string(ends[first].identifier)}; });
    }
}

void CheckOverlaps(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    // Each pair once, whichever of them has the other's end: by identifiers.
    std::vector<std::pair<Index, Index>> pairs;
    const std::size_t most = 10000 + 8 * structure.bars.size();
    for (Index i = 0; i < structure.bars.size(); ++i) {
        const auto stops = structure.stops[i];
        for (std::size_t k = 1; k + 1 < stops.size(); ++k) {
            const auto members = structure.membersAt[stops[k].point];
            for (const Member& member : members) {
                if (member.kind != Kind::kBar || member.index == i || pairs.size() >= most)
                    continue;
                const Bar& other = structure.bars[member.index];
                if (other.start != stops[k].point && other.end != stops[k].point) continue;
                if (HaveSameEnds(structure.bars[i], other) || other.start == other.end) continue;
                const Segment a = structure.SegmentOf(structure.bars[i]);
                const Segment b = structure.SegmentOf(other);
                if (!AreAlong(a, b, structure.tolerance)) continue;
                if (OverlapOf(a, b) <= structure.tolerance) continue;
                const bool isFirst = structure.bars[i].identifier < other.identifier;
                pairs.emplace_back(isFirst ? i : member.index, isFirst ? member.index : i);
            }
        }
    }
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    for (const auto& [first, second] : pairs) {
        report.Add(Code::kBarsOverlap, structure.bars[first], [&, one = first, two = second] {
            const double overlap = OverlapOf(structure.SegmentOf(structure.bars[one]),
                                             structure.SegmentOf(structure.bars[two]));
            return Values{std::to_string(structure.bars[two].identifier), LengthText(overlap)};
        });
    }
}

void CheckCrossings(const Model& model, Report& report)
{
    const std::vector<Bar>& bars = model.structure.bars;
    for (const auto& [first, second] : model.crossings.bars) {
        // Braces that cross are drawn so.
        if (bars[first].IsTruss() && bars[second].IsTruss()) continue;
        const bool isFirst = bars[first].identifier < bars[second].identifier;
        const Bar& about = isFirst ? bars[first] : bars[second];
        const Bar& other = isFirst ? bars[second] : bars[first];
        report.Add(Code::kBarsCross, about,
                   [&] { return Values{std::to_string(other.identifier)}; });
    }
}

void CheckShortBars(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    for (const Bar& bar : structure.bars) {
        if (!bar.isUsable || bar.length > structure.reach) continue;
        report.Add(Code::kVeryShortBar, bar, [&] {
            return Values{LengthText(bar.length), LengthText(structure.tolerance)};
        });
    }
}

}  // namespace tamur::host
