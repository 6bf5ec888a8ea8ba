// All tables of a model, in the order in which the reader and its load accessor name them.
#pragma once

#include <tamur/ranges.h>

namespace tamur::tool {

struct TableName {
    const char* published;  // by the interface
    const char* plain;      // for an engineer
};

// Calls visit(name, range) for every table but the loads.
template <class Visit>
void VisitStructure(ITAMURStructureReader& reader, Visit&& visit)
{
    visit(TableName{"Materials", "materials"}, Materials(reader));
    visit(TableName{"Sections", "bar sections"}, Sections(reader));
    visit(TableName{"Attaches", "releases"}, Attaches(reader));
    visit(TableName{"Groupes", "groups"}, Groupes(reader));
    visit(TableName{"Filaires", "bars and beams"}, Filaires(reader));
    visit(TableName{"Surfaciques", "plates and shells"}, Surfaciques(reader));
    visit(TableName{"Ouvertures", "openings"}, Ouvertures(reader));
    visit(TableName{"Parois", "walls under snow and wind"}, Parois(reader));
    visit(TableName{"AppuisPonctuels", "point supports"}, AppuisPonctuels(reader));
    visit(TableName{"AppuisLineaires", "line supports"}, AppuisLineaires(reader));
    visit(TableName{"AppuisSurfaciques", "surface supports"}, AppuisSurfaciques(reader));
    visit(TableName{"Cas", "load cases"}, Cas(reader));
    visit(TableName{"Nodes", "nodes"}, Nodes(reader));
    visit(TableName{"Masses", "masses"}, Masses(reader));
    visit(TableName{"Cables", "cables"}, Cables(reader));
    visit(TableName{"Lines", "construction lines"}, Lines(reader));
    visit(TableName{"LinesInterieur", "inner lines"}, LinesInterieur(reader));
    visit(TableName{"Deplacements", "imposed displacements"}, Deplacements(reader));
    visit(TableName{"SurfacicSections", "cuts through surfaces"}, SurfacicSections(reader));
}

// The same for the tables of the load accessor.
template <class Visit>
void VisitLoads(ITAMURStructureReader& reader, Visit&& visit)
{
    visit(TableName{"ChargesPonctuelles", "point loads"}, ChargesPonctuelles(reader));
    visit(TableName{"ChargesLineaires", "line loads"}, ChargesLineaires(reader));
    visit(TableName{"ChargesSurfaciques", "surface loads"}, ChargesSurfaciques(reader));
    visit(TableName{"ChargesPoidsPropre", "self-weight loads"}, ChargesPoidsPropre(reader));
    visit(TableName{"ChargesThermiques", "thermal loads"}, ChargesThermiques(reader));
    visit(TableName{"ChargesSismiques", "seismic cases"}, ChargesSismiques(reader));
    visit(TableName{"Combinaisons", "combinations"}, Combinaisons(reader));
    visit(TableName{"Enveloppes", "envelopes"}, Enveloppes(reader));
}

// What is served but is no table of records.
[[nodiscard]] inline int SkippedCombinations(ITAMURStructureReader& reader)
{
    int count = 0;
    Check(GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor)
              ->GetNbCombinaisonsSkipped(&count),
          "GetNbCombinaisonsSkipped");
    return count;
}

[[nodiscard]] inline TMRStructureData StructureData(ITAMURStructureReader& reader)
{
    TMRStructureData data = {};
    Check(reader.GetStructureGlobalData(&data), "GetStructureGlobalData");
    return data;
}

// Calls visit(text) for every message. The texts are lent by their accessor: not to be freed.
template <class Visit>
void VisitMessages(ITAMURStructureReader& reader, Visit&& visit)
{
    const auto accessor = GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    Check(accessor->GetNbMessages(&count), "GetNbMessages");
    for (LONG rank = 0; rank < count; ++rank) {
        BSTR text = nullptr;
        Check(accessor->GetMessageAtRank(rank, &text), "GetMessageAtRank");
        visit(ViewOf(text));
    }
}

}  // namespace tamur::tool
