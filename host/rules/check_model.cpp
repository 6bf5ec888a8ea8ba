#include "host/rules/check_model.h"

#include <charconv>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

constexpr Rule kRules[] = {
    CheckSupportOfParts,  CheckSupports,     CheckSearch,       CheckFreeNodes,
    CheckCoincidentNodes, CheckIdentifiers,  CheckNearEnds,     CheckCrossings,
    CheckSameBars,        CheckOverlaps,     CheckShortBars,    CheckJoints,
    CheckOutlines,        CheckOpenings,     CheckLoadPlaces,   CheckCasesOfLoads,
    CheckEmptyCases,      CheckCombinations, CheckUnused,       CheckMaterials,
    CheckSections,        CheckThicknesses,  CheckCoordinates,  CheckLoadValues,
    CheckUnitOfLength,    CheckSameSurfaces, CheckSameSupports, CheckCaseNumbers,
    CheckCircles,         CheckLoadColumns,  CheckGroups,       CheckGroupsOfLoads,
    CheckTolerance,
};

std::vector<bool> SupportedPoints(const Structure& structure)
{
    std::vector<bool> isSupported(structure.points.size());
    for (const Index point : structure.heldPoints.values) isSupported[point] = true;
    return isSupported;
}

}  // namespace

std::string Number(double value)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6);
    return {text, end.ptr};
}

std::string LengthText(double value)
{
    return Number(value) + " m";
}

void CheckModel(const Structure& structure, const LoadCases& cases, const RecordLines& lines,
                Findings& findings)
{
    if (structure.IsEmpty()) return;  // that nothing is used follows
    const Model model = {structure, cases, SupportedPoints(structure), FindCrossings(structure)};
    Report report(lines, findings);
    for (const Rule rule : kRules) rule(model, report);
}

void CheckModel(ITAMURStructureReader& reader, const RecordLines& lines, Findings& findings)
{
    CheckModel(ReadStructure(reader), ReadLoadCases(reader), lines, findings);
}

}  // namespace tamur::host
