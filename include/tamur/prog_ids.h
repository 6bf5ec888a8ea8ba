// The names of the classes that hosts create. On Windows the registry leads from them to the class
// identifiers (CLSIDFromProgID); elsewhere this header does.
#pragma once

#include <TAMURReader.h>

#include <string_view>

namespace tamur {

// One class that hosts can create: its name, the name with its version, and its identifier.
struct ProgId {
    const OLECHAR* name;
    const OLECHAR* versioned;
    const CLSID* classId;
};

inline constexpr ProgId kProgIds[] = {
    {OLESTR("TAMURReader.TAMURStructureReader"), OLESTR("TAMURReader.TAMURStructureReader.1"),
     &CLSID_TAMURStructureReader},
    {OLESTR("TAMURReader.TMRSurfaciqueAccessor"), OLESTR("TAMURReader.TMRSurfaciqueAccessor.1"),
     &CLSID_TMRSurfaciqueAccessor},
};

// The class of that name, with its version or without, written exactly so; null when it names
// none.
inline const CLSID* ClassOfProgId(std::basic_string_view<OLECHAR> name)
{
    for (const ProgId& progId : kProgIds) {
        if (name == progId.name || name == progId.versioned) return progId.classId;
    }
    return nullptr;
}

}  // namespace tamur
