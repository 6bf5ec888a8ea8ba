#include "counts.h"

#include <tamur/ranges.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace tamur::bench {
namespace {

// Which table is counted at a place: the contract does not know the kinds of a file's lines.
struct CountedTable {
    std::size_t place;
    std::string_view name;
};
constexpr CountedTable kTables[] = {{1, "Nodes"},
                                    {2, "Filaires"},
                                    {3, "Surfaciques"},
                                    {4, "AppuisPonctuels"},
                                    {5, "ChargesPonctuelles"},
                                    {6, "ChargesLineaires"},
                                    {7, "ChargesSurfaciques"},
                                    {8, "ChargesPoidsPropre"},
                                    {9, "Masses"},
                                    {10, "AppuisLineaires"},
                                    {11, "AppuisSurfaciques"},
                                    {12, "Deplacements"},
                                    {13, "ChargesThermiques"},
                                    {15, "SurfacicSections"},
                                    {16, "LinesInterieur"},
                                    {17, "Ouvertures"},
                                    {20, "Parois"},
                                    {21, "Cables"},
                                    {22, "Lines"},
                                    {kMaterials, "Materials"},
                                    {kSections, "Sections"},
                                    {kReleases, "Attaches"}};

std::string NameOf(std::size_t place)
{
    const auto table = std::ranges::find(kTables, place, &CountedTable::place);
    return table == std::end(kTables) ? "what has no table" : std::string(table->name);
}

}  // namespace

Counts CountsOf(ITAMURStructureReader& reader)
{
    Counts counts = {};
    ForEachTable(reader, [&](const auto& table) {
        const auto counted =
            std::ranges::find(kTables, std::string_view(table.Name()), &CountedTable::name);
        if (counted != std::end(kTables)) counts[counted->place] = table.Size();
    });
    return counts;
}

void RequireSame(const Counts& component, const Counts& reference, const std::string& name)
{
    for (std::size_t place = 0; place < component.size(); ++place) {
        if (reference[place] == component[place]) continue;
        throw std::runtime_error(name + " reads " + std::to_string(reference[place]) + " of " +
                                 NameOf(place) + ", the component " +
                                 std::to_string(component[place]));
    }
}

}  // namespace tamur::bench
