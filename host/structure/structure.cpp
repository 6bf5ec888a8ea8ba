#include "host/structure/structure.h"

#include "host/structure/contacts.h"
#include "host/structure/read_model.h"

namespace tamur::host {

Structure ReadStructure(ITAMURStructureReader& reader)
{
    Structure structure = ReadModel(reader);
    FindContacts(structure);
    FindParts(structure);
    FindSurfacesOfOpenings(structure);
    FindCarriers(structure);
    return structure;
}

}  // namespace tamur::host
