// The elements of a model as parts of VTK files.
#pragma once

#include <functional>

#include "host/export/target.h"
#include "host/export/vtk/part.h"

namespace tamur::host {

// Points of a model as those of a file: each that is used, once.
class VtkPoints {
 public:
    explicit VtkPoints(const Structure& structure) : structure_(structure) {}

    std::uint32_t Use(Index point)
    {
        if (places_.empty()) places_.assign(structure_.points.size(), kNone);
        Index& place = places_[point];
        if (place == kNone) place = Add(structure_.points[point]);
        return place;
    }
    // One that no other element has.
    std::uint32_t Add(Point point)
    {
        points_.push_back(point);
        return static_cast<std::uint32_t>(points_.size() - 1);
    }
    void Clear()
    {
        points_.clear();
        places_.clear();
    }
    [[nodiscard]] const std::vector<Point>& All() const { return points_; }

 private:
    const Structure& structure_;
    std::vector<Point> points_;
    std::vector<Index> places_;  // of the structure's points
};

// Calls use(part) for each kind of elements that there are, one after the other; for the loads
// last, once for each case. What is in no part is in the report.
void ForEachPart(const Source& source, ExportReport& report, VtkPoints& points,
                 const std::function<void(VtkPart&&)>& use);

}  // namespace tamur::host
