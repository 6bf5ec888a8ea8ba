// Which part of a line lies on bars and surfaces.
#pragma once

#include "host/structure/box_tree.h"
#include "host/structure/structure.h"

namespace tamur::host {

struct Coverage {
    double share = 0;             // of its length, 0 to 1
    bool isOnSurface = false;     // some of it on a surface or a wall
    std::vector<Member> members;  // bars and surfaces, each once
};

class CoverageSearch {
 public:
    explicit CoverageSearch(const Structure& structure);

    // Walls carry too, and are not among the members. Of the edges of a polygon only surfaces that
    // lie more or less as it does count, not those that cross it or stand on it.
    [[nodiscard]] Coverage Cover(const Segment& line, const Polygon* edgeOf = nullptr);

    // Whether a bar or a surface begins in the polygon and lies in its plane.
    [[nodiscard]] bool HasMemberIn(const Polygon& polygon);

    [[nodiscard]] bool IsComplete() const { return !budget_.IsSpent(); }

 private:
    struct Interval {
        double from, to;
    };
    void AddBar(const Segment& line, Index bar);
    bool AddSurface(const Segment& line, const Surface& surface);
    [[nodiscard]] double CoveredShare(double gap);

    const Structure& structure_;
    BoxTree bars_, surfaces_;  // walls after surfaces
    Budget budget_;
    std::vector<Interval> intervals_;
    std::vector<double> places_;
};

}  // namespace tamur::host
