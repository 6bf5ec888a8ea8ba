#include "counts.h"

#include <tamur/ranges.h>

#include <cstdio>
#include <cstdlib>

namespace tamur::bench {
namespace {

void Print(const char* name, const Counts& counts)
{
    std::fprintf(stderr, "%s:", name);
    for (const std::int64_t count : counts.elements) std::fprintf(stderr, " %ld", count);
    for (const std::int64_t count :
         {counts.groups, counts.materials, counts.sections, counts.releases, counts.cases,
          counts.combinations, counts.envelopes, counts.seismicCases}) {
        std::fprintf(stderr, " %ld", count);
    }
    std::fprintf(stderr, "\n");
}

}  // namespace

Counts CountsOf(ITAMURStructureReader& reader)
{
    Counts counts;
    auto& elements = counts.elements;
    elements[1] = Nodes(reader).Size();
    elements[2] = Filaires(reader).Size();
    elements[3] = Surfaciques(reader).Size();
    elements[4] = AppuisPonctuels(reader).Size();
    elements[5] = ChargesPonctuelles(reader).Size();
    elements[6] = ChargesLineaires(reader).Size();
    elements[7] = ChargesSurfaciques(reader).Size();
    elements[8] = ChargesPoidsPropre(reader).Size();
    elements[9] = Masses(reader).Size();
    elements[10] = AppuisLineaires(reader).Size();
    elements[11] = AppuisSurfaciques(reader).Size();
    elements[12] = Deplacements(reader).Size();
    elements[13] = ChargesThermiques(reader).Size();
    elements[15] = SurfacicSections(reader).Size();
    elements[16] = LinesInterieur(reader).Size();
    elements[17] = Ouvertures(reader).Size();
    elements[20] = Parois(reader).Size();
    elements[21] = Cables(reader).Size();
    elements[22] = Lines(reader).Size();
    counts.groups = Groupes(reader).Size();
    counts.materials = Materials(reader).Size();
    counts.sections = Sections(reader).Size();
    counts.releases = Attaches(reader).Size();
    counts.cases = Cas(reader).Size();
    counts.combinations = Combinaisons(reader).Size();
    counts.envelopes = Enveloppes(reader).Size();
    counts.seismicCases = ChargesSismiques(reader).Size();
    return counts;
}

void RequireSame(const Counts& component, const Counts& reference, const std::string& name)
{
    if (component == reference) return;
    std::fprintf(stderr, "%s does not read the same counts as the component\n", name.c_str());
    Print("component", component);
    Print(name.c_str(), reference);
    std::exit(1);
}

}  // namespace tamur::bench
