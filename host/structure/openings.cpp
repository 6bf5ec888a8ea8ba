// Which surfaces openings belong to.
#include <algorithm>
#include <utility>

#include "host/structure/contacts.h"

namespace tamur::host {
namespace {

class SurfaceSearch {
 public:
    explicit SurfaceSearch(const Structure& structure)
        : structure_(structure), budget_(BudgetFor(structure.corners.size()))
    {
        std::vector<Box> boxes;
        boxes.reserve(structure.surfaces.size());
        for (const Surface& surface : structure.surfaces) {
            Box box;
            if (surface.isUsable) {
                for (const Index corner : structure.CornersOf(surface)) {
                    box.Add(structure.points[corner]);
                }
            }
            boxes.push_back(box.Grown(structure.tolerance));
        }
        tree_ = BoxTree(boxes);
    }

    // The best of those on which all its corners are.
    Index Find(const Surface& opening)
    {
        GetOutline(structure_, opening, corners_);
        Index best = kNone;
        const auto order = [this](Index index) {
            const Surface& surface = structure_.surfaces[index];
            return std::tuple(surface.area, surface.identifier, index);
        };
        const auto has = [this](const Box& box) { return box.Has(corners_[0]); };
        (void)tree_.Visit(budget_, has, [&](Index index) {
            if (best != kNone && order(best) < order(index)) return;
            if (IsOn(opening, structure_.surfaces[index])) best = index;
        });
        return best;
    }

    [[nodiscard]] bool IsComplete() const { return !budget_.IsSpent(); }

 private:
    bool IsOn(const Surface& opening, const Surface& surface)
    {
        const auto own = structure_.CornersOf(surface);
        const auto others = structure_.CornersOf(opening);
        if (!surface.isUsable || !budget_.Spend(own.size() * others.size())) return false;
        GetOutline(structure_, surface, outline_);
        const Polygon polygon(outline_);
        return std::all_of(others.begin(), others.end(), [&](Index corner) {
            return std::find(own.begin(), own.end(), corner) != own.end() ||
                   (surface.isPlane &&
                    polygon.Contains(structure_.points[corner], structure_.tolerance));
        });
    }

    const Structure& structure_;
    Budget budget_;
    BoxTree tree_;
    std::vector<Point> corners_, outline_;
};

}  // namespace

void FindSurfacesOfOpenings(Structure& structure)
{
    if (structure.openings.empty()) return;
    SurfaceSearch search(structure);
    for (Surface& opening : structure.openings) {
        if (opening.isUsable && opening.cornerCount > 0) opening.surface = search.Find(opening);
    }
    if (!search.IsComplete()) structure.isComplete = false;
}

}  // namespace tamur::host
