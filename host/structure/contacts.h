// What touches what: the steps by which a model that was read becomes a structure.
#pragma once

#include "host/structure/box_tree.h"
#include "host/structure/structure.h"

namespace tamur::host {

// Steps that a search in a model with so many things may take: far more than in one where things
// touch their neighbours.
[[nodiscard]] inline Budget BudgetFor(std::size_t things)
{
    return Budget(50000 + std::uint64_t{400} * things);
}

// Fills Structure::stops, membersAt and heldPoints.
void FindContacts(Structure& structure);

// Fills Structure::partOf and partCount.
void FindParts(Structure& structure);

// Fills Structure::carriers and carried.
void FindCarriers(Structure& structure);

// Sets Surface::surface of the openings. Needs no other of these steps.
void FindSurfacesOfOpenings(Structure& structure);

}  // namespace tamur::host
