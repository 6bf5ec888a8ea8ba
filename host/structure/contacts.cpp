#include "host/structure/contacts.h"

#include <algorithm>
#include <optional>

#include "host/structure/point_grid.h"

namespace tamur::host {
namespace {

constexpr double kLargest = 1e12;

// A usual size of bars and surfaces.
double CellFor(const Structure& structure)
{
    constexpr std::size_t kSample = 500;
    std::vector<double> sizes;
    const std::size_t bars = structure.bars.size(), surfaces = structure.surfaces.size();
    for (std::size_t i = 0; i < bars; i += bars / kSample + 1) {
        sizes.push_back(structure.bars[i].length);
    }
    for (std::size_t i = 0; i < surfaces; i += surfaces / kSample + 1) {
        sizes.push_back(structure.surfaces[i].perimeter / 4);
    }
    const double least = std::max(structure.extent * 1e-9, 8 * structure.tolerance);
    if (sizes.empty()) return least;
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    // A size that is not a number is none.
    return *middle > least && *middle < kLargest ? *middle : least;
}

// Finds the points on lines and in polygons: in the grid, or in a tree where that declines.
class PointSearch {
 public:
    explicit PointSearch(Structure& structure)
        : structure_(structure),
          grid_(structure.points, CellFor(structure)),
          budget_(BudgetFor(structure.corners.size())),
          // Every contact that is kept takes memory: no more of it than the model itself.
          contactsLeft_(10000 + 8 * structure.corners.size())
    {
    }

    template <class Use>
    void OnLine(const Element& line, const Use& use)
    {
        const Segment segment = structure_.SegmentOf(line);
        const double tolerance = structure_.tolerance;
        const Box around = BoxOf(segment).Grown(tolerance);
        const auto meets = [&](const Box& box) {
            return box.Meets(around) && Meets(box.Grown(tolerance), segment);
        };
        Visit(around, meets, [&](Index point, const Point& at) {
            const double place = FootOn(segment, at);
            const Point between = at - segment.At(place);
            if (Dot(between, between) > tolerance * tolerance) return;
            if (IsLeft()) use(point, place);
        });
    }

    template <class Use>
    void InPolygon(const Element& element, const Use& use)
    {
        GetOutline(structure_, element, outline_);
        const Polygon polygon(outline_);
        const double tolerance = structure_.tolerance;
        Box around;
        for (const Point& corner : outline_) around.Add(corner);
        around = around.Grown(tolerance);
        const auto meets = [&](const Box& box) {
            return box.Meets(around) && Meets(box.Grown(tolerance), polygon.ThePlane());
        };
        Visit(around, meets, [&](Index point, const Point& at) {
            if (std::abs(polygon.ThePlane().DistanceTo(at)) > tolerance) return;
            if (!budget_.Spend(outline_.size()) || !polygon.Contains(at, tolerance)) return;
            if (IsLeft()) use(point);
        });
    }

    [[nodiscard]] bool IsComplete() const { return !budget_.IsSpent() && contactsLeft_ > 0; }

 private:
    static std::vector<Box> BoxesOf(const std::vector<Point>& points)
    {
        std::vector<Box> boxes;
        boxes.reserve(points.size());
        for (const Point& point : points) boxes.push_back({point, point});
        return boxes;
    }

    template <class Meets, class Use>
    void Visit(const Box& around, const Meets& meets, const Use& use)
    {
        if (!IsComplete()) return;
        const bool isDone = grid_.Visit(around, [&](Index point, const Point& at) {
            if (around.Has(at)) use(point, at);
        });
        if (isDone) return;
        if (!tree_) tree_.emplace(BoxesOf(structure_.points));
        (void)tree_->Visit(budget_, meets,
                           [&](Index point) { use(point, structure_.points[point]); });
    }
    bool IsLeft()
    {
        if (contactsLeft_ > 0) --contactsLeft_;
        return contactsLeft_ > 0;
    }

    Structure& structure_;
    PointGrid grid_;
    std::optional<BoxTree> tree_;
    Budget budget_;
    std::size_t contactsLeft_;
    std::vector<Point> outline_;  // of the polygon that is looked at
};

struct Contact {
    Index point;
    Member member;
};

// Puts the contacts into the lists of their points.
void ListByPoint(Structure& structure, const std::vector<Contact>& contacts)
{
    Lists<Member>& lists = structure.membersAt;
    lists.starts.assign(structure.points.size() + 2, 0);
    for (const Contact& contact : contacts) ++lists.starts[contact.point + 2];
    for (std::size_t i = 2; i < lists.starts.size(); ++i) lists.starts[i] += lists.starts[i - 1];
    lists.values.resize(contacts.size());
    for (const Contact& contact : contacts) {
        lists.values[lists.starts[contact.point + 1]++] = contact.member;
    }
    lists.starts.pop_back();
}

class ContactFinder {
 public:
    explicit ContactFinder(Structure& structure) : structure_(structure), search_(structure) {}

    void Find()
    {
        contacts_.reserve(2 * structure_.bars.size() + 5 * structure_.surfaces.size());
        structure_.stops.starts.reserve(structure_.bars.size() + 1);
        structure_.stops.values.reserve(2 * structure_.bars.size());
        for (Index i = 0; i < structure_.bars.size(); ++i) FindStops(i);
        seen_.assign(structure_.points.size(), kNone);
        for (Index i = 0; i < structure_.surfaces.size(); ++i) FindPoints(i);
        ListByPoint(structure_, contacts_);
        for (const Support& support : structure_.supports) FindHeldPoints(support);
        structure_.isComplete = structure_.isComplete && search_.IsComplete();
    }

 private:
    void FindStops(Index index)
    {
        const Bar& bar = structure_.bars[index];
        Lists<Stop>& stops = structure_.stops;
        if (bar.isUsable && bar.start != bar.end) {
            const std::size_t first = stops.values.size();
            stops.values.push_back({bar.start, 0});
            search_.OnLine(bar, [&](Index point, double place) {
                if (point == bar.start || point == bar.end) return;
                stops.values.push_back({point, place});
            });
            stops.values.push_back({bar.end, 1});
            if (stops.values.size() > first + 3) {
                std::sort(stops.values.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                          stops.values.end() - 1,
                          [](const Stop& a, const Stop& b) { return a.place < b.place; });
            }
            for (std::size_t i = first; i < stops.values.size(); ++i) {
                contacts_.push_back({stops.values[i].point, {Kind::kBar, index}});
            }
        } else if (bar.isUsable) {
            contacts_.push_back({bar.start, {Kind::kBar, index}});
        }
        stops.EndList();
    }

    void FindPoints(Index index)
    {
        const Surface& surface = structure_.surfaces[index];
        if (!surface.isUsable) return;
        const auto add = [&](Index point) {
            if (seen_[point] == index) return;
            seen_[point] = index;
            contacts_.push_back({point, {Kind::kSurface, index}});
        };
        for (const Index corner : structure_.CornersOf(surface)) add(corner);
        if (surface.isPlane) search_.InPolygon(surface, add);
    }

    void FindHeldPoints(const Support& support)
    {
        Lists<Index>& held = structure_.heldPoints;
        const auto add = [&](Index point) {
            if (!structure_.membersAt[point].empty()) held.values.push_back(point);
        };
        const std::span<const Index> corners = structure_.CornersOf(support);
        if (support.isUsable && support.kind == Kind::kPointSupport) {
            add(corners[0]);
        } else if (support.isUsable && support.kind == Kind::kLineSupport) {
            search_.OnLine(support, [&](Index point, double) { add(point); });
        } else if (support.isUsable && !corners.empty()) {
            search_.InPolygon(support, add);
        }
        held.EndList();
    }

    Structure& structure_;
    PointSearch search_;
    std::vector<Contact> contacts_;
    std::vector<Index> seen_;  // for each point, the last surface that it was found on
};

}  // namespace

void FindContacts(Structure& structure)
{
    ContactFinder(structure).Find();
}

}  // namespace tamur::host
