// What loads act on.
#include <algorithm>
#include <optional>

#include "host/structure/contacts.h"
#include "host/structure/coverage.h"

namespace tamur::host {
namespace {

// A point with more members is not worth the search.
constexpr std::size_t kMost = Structure::kMostCarriersOfPoint;

// A member that has all of these points on it, and everything between them.
std::optional<Member> CommonMember(const Structure& structure, std::span<const Index> points)
{
    const auto first = structure.membersAt[points[0]];
    if (first.size() > kMost) return std::nullopt;
    for (const Member& member : first) {
        if (member.kind == Kind::kSurface && !structure.surfaces[member.index].isConvex) continue;
        const bool isCommon = std::all_of(points.begin() + 1, points.end(), [&](Index point) {
            const auto members = structure.membersAt[point];
            return members.size() <= kMost &&
                   std::find(members.begin(), members.end(), member) != members.end();
        });
        if (isCommon) return member;
    }
    return std::nullopt;
}

class CarrierFinder {
 public:
    explicit CarrierFinder(Structure& structure) : structure_(structure) {}

    void Find()
    {
        for (const Load& load : structure_.loads) {
            const double share = load.isUsable && load.cornerCount > 0 ? Carry(load) : 0;
            structure_.carried.push_back(share);
            structure_.carriers.EndList();
        }
        if (search_ && !search_->IsComplete()) structure_.isComplete = false;
    }

 private:
    double Carry(const Load& load)
    {
        const auto corners = structure_.CornersOf(load);
        std::vector<Member>& carriers = structure_.carriers.values;
        if (load.kind == Kind::kPointLoad || structure_.points.empty()) return AtPoint(corners[0]);
        if (const auto member = CommonMember(structure_, corners)) {
            carriers.push_back(*member);
            return 1;
        }
        if (!search_) search_.emplace(structure_);
        return load.kind == Kind::kLineLoad ? AlongLine(load) : OverArea(load);
    }

    double AtPoint(Index point)
    {
        const auto members = structure_.membersAt[point];
        Append(members.first(std::min(members.size(), kMost)));
        return members.empty() ? 0 : 1;
    }

    double AlongLine(const Load& load)
    {
        const auto corners = structure_.CornersOf(load);
        if (corners[0] == corners[1]) return AtPoint(corners[0]);
        const Coverage coverage = search_->Cover(structure_.SegmentOf(load));
        Append(coverage.members);
        return coverage.share;
    }

    // A panel is carried when its outline is; one that lies on bars only is theirs, whatever part
    // of its outline they are under.
    double OverArea(const Load& load)
    {
        const std::vector<Point> outline = OutlineOf(structure_, load);
        const Polygon polygon(outline);
        const std::size_t first = structure_.carriers.values.size();
        double covered = 0;
        bool isOnSurface = false;
        for (std::size_t i = 0; i < polygon.Size(); ++i) {
            const Coverage coverage = search_->Cover(polygon.Edge(i), &polygon);
            covered += coverage.share * polygon.Edge(i).Length();
            isOnSurface = isOnSurface || coverage.isOnSurface;
            Append(coverage.members);
        }
        auto& carriers = structure_.carriers.values;
        const auto own = carriers.begin() + static_cast<std::ptrdiff_t>(first);
        std::sort(own, carriers.end(), [](const Member& a, const Member& b) {
            return a.kind != b.kind ? a.kind < b.kind : a.index < b.index;
        });
        carriers.erase(std::unique(own, carriers.end()), carriers.end());
        if (covered == 0) return search_->HasMemberIn(polygon) ? 1 : 0;
        if (!isOnSurface) return 1;
        const double share = covered / polygon.Perimeter();
        return share > 1 - 1e-9 ? 1 : share;
    }

    void Append(std::span<const Member> members)
    {
        auto& carriers = structure_.carriers.values;
        // No more memory than the model itself.
        if (carriers.size() + members.size() > 10000 + 8 * structure_.corners.size()) {
            structure_.isComplete = false;
            return;
        }
        carriers.insert(carriers.end(), members.begin(), members.end());
    }

    Structure& structure_;
    std::optional<CoverageSearch> search_;
};

}  // namespace

void FindCarriers(Structure& structure)
{
    CarrierFinder(structure).Find();
}

}  // namespace tamur::host
