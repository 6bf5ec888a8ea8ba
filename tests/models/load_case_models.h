// Models with load cases and the loads on whole groups: self-weight and thermal.
#pragma once

#include <string>
#include <vector>

#include "models/element_lines.h"

namespace tamur::test {

inline std::string SelfWeightLine(int caseNumber, const std::string& values = "0 0 -1",
                                  LONG identifier = 7)
{
    return ElementLine(8, identifier).Columns(std::to_string(caseNumber) + " " + values + " 2 1");
}

inline std::string ThermalLine(int caseNumber, const std::string& values = "20 0 0",
                               LONG identifier = 7)
{
    return ElementLine(13, identifier).Columns(std::to_string(caseNumber) + " " + values + " 2 1");
}

// A reader with those lines of "#Cas" and those elements.
inline ComPtr<ITAMURStructureReader> ImportedLoads(const std::vector<std::string>& cases,
                                                   const std::vector<std::string>& lines)
{
    return Imported(ModelText().Section("#Cas", cases).Elements(lines));
}

inline std::string SelfWeightWarning(int caseNumber)
{
    return "ATTENTION: Import Poids propre cas numéro " + std::to_string(caseNumber) +
           " impossible";
}

inline std::string ThermalWarning(int caseNumber)
{
    return "ATTENTION: Import Effet thermique cas numéro " + std::to_string(caseNumber) +
           " impossible";
}

}  // namespace tamur::test
