// Names from labels.
#pragma once

#include <tamur/records.h>

#include "host/export/saf/model.h"

namespace tamur::host::saf {

// The first label of an element when it is free, else a letter and its identifier.
[[nodiscard]] std::string NameOfElement(Model& model, Names& names, const Element& element,
                                        const TMRElementLabels& labels, const char* letter);

// "N1; N2; N3", and "Line; Line; Line". Nothing when fewer than three of the corners differ.
struct Outline {
    std::string nodes, edges;
};
[[nodiscard]] std::optional<Outline> OutlineOfCorners(Model& model, const Element& element);

// The corners without those that follow one in the same place.
[[nodiscard]] std::vector<Index> DistinctCorners(const Structure& structure,
                                                 const Element& element);

}  // namespace tamur::host::saf
