#include "counts.h"

#include <tamur/ranges.h>

namespace tamur::bench {

Counts CountsOf(ITAMURStructureReader& reader)
{
    Counts counts = {};
    counts[1] = Nodes(reader).Size();
    counts[2] = Filaires(reader).Size();
    counts[3] = Surfaciques(reader).Size();
    counts[4] = AppuisPonctuels(reader).Size();
    counts[5] = ChargesPonctuelles(reader).Size();
    counts[6] = ChargesLineaires(reader).Size();
    counts[7] = ChargesSurfaciques(reader).Size();
    counts[8] = ChargesPoidsPropre(reader).Size();
    counts[9] = Masses(reader).Size();
    counts[10] = AppuisLineaires(reader).Size();
    counts[11] = AppuisSurfaciques(reader).Size();
    counts[12] = Deplacements(reader).Size();
    counts[13] = ChargesThermiques(reader).Size();
    counts[15] = SurfacicSections(reader).Size();
    counts[16] = LinesInterieur(reader).Size();
    counts[17] = Ouvertures(reader).Size();
    counts[20] = Parois(reader).Size();
    counts[21] = Cables(reader).Size();
    counts[22] = Lines(reader).Size();
    counts[kMaterials] = Materials(reader).Size();
    counts[kSections] = Sections(reader).Size();
    counts[kReleases] = Attaches(reader).Size();
    return counts;
}

void RequireSame(const Counts& component, const Counts& reference, const std::string& name)
{
    for (std::size_t kind = 0; kind < component.size(); ++kind) {
        if (reference[kind] == component[kind]) continue;
        throw std::runtime_error(name + " reads " + std::to_string(reference[kind]) + " of kind " +
                                 std::to_string(kind) + ", the component " +
                                 std::to_string(component[kind]));
    }
}

}  // namespace tamur::bench
