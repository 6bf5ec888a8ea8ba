// What lies along a line: bars, and edges of surfaces.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "host/export/saf/model.h"

namespace tamur::host::saf {

// A part of the line that a member lies on.
struct Piece {
    Index member = 0;
    Index edge = 0;              // of a surface, from 0
    double from = 0, to = 0;     // on the line, from 0 to 1
    double first = 0, last = 0;  // where that is on the member, in its length from its start
};

struct Pieces {
    std::vector<Piece> pieces;
    std::vector<std::pair<double, double>> gaps;  // parts of the line with nothing along them
};

// Bars of the candidates that are written; where several lie along a part the first has it.
[[nodiscard]] Pieces BarsAlong(const Model& model, const Segment& line,
                               std::span<const Member> candidates);
[[nodiscard]] Pieces EdgesAlong(Model& model, const Segment& line,
                                std::span<const Member> candidates);

// What is written and touches one of the points of the line, and those of `more` that are written.
[[nodiscard]] std::vector<Member> CandidatesFor(const Model& model, const Element& line,
                                                std::span<const Member> more);

// The surface that has both ends on it.
[[nodiscard]] std::optional<Index> SurfaceWith(Model& model, const Element& line);

// A line within a surface, which others may refer to by its name.
void AddInnerEdge(Model& model, const Element& line, Index surface, const std::string& name);

}  // namespace tamur::host::saf
