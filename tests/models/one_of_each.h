// A model with one record in every table of elements.
#pragma once

#include "models/bar_models.h"
#include "models/load_case_models.h"

namespace tamur::test {

inline std::vector<std::string> OneOfEach(LONG identifier)
{
    std::vector<std::string> lines;
    for (const int kind : {1, 3, 4, 5, 6, 7, 9, 10, 11, 12, 15, 16, 17, 20, 21, 22}) {
        lines.push_back(
            ElementLine(kind, identifier).Points({"0 0 0", "1 0 0", "1 1 0"}).Labels({"L"}));
    }
    lines.push_back(ElementLine(2, identifier).Points({"0 0 0", "1 0 0"}).Labels({"L"}));
    lines.push_back(SelfWeightLine(1, "0 0 -1", identifier));
    lines.push_back(ThermalLine(2, "20 0 0", identifier));
    return lines;
}

inline ModelText OneOfEachModel(LONG identifier)
{
    return BarTables().Section("#Cas", {"1 G 1 G 0", "2 T 1 T 0"}).Elements(OneOfEach(identifier));
}

// Calls `use` with the range over each table of elements but those whose ranks are not checked:
// nodes, surfaces, openings and walls.
template <class Use>
void ForEachCheckedTable(ITAMURStructureReader& reader, Use use)
{
    ForEachElementTable(reader, [&](const auto& table) {
        using Record = typename std::decay_t<decltype(table)>::PublicRecord;
        if constexpr (!kRankEndsTheProcess<Record>) use(table);
    });
}

}  // namespace tamur::test
