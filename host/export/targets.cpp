#include "host/export/target.h"
#include "host/export/writers.h"

namespace tamur::host {
namespace {

constexpr Target kTargets[] = {
    {"csv",
     {"-csv", ".csv"},
     {"a folder with a file for each table", "un dossier avec un fichier par table"},
     ".csv",
     Need::kFindings,
     WriteCsv},
    {"xlsx",
     {".xlsx"},
     {"a workbook with a sheet for each table", "un classeur avec une feuille par table"},
     "",
     Need::kFindings,
     WriteXlsx},
    {"saf",
     {".saf.xlsx"},
     {"a workbook of the Structural Analysis Format",
      "un classeur au format Structural Analysis Format"},
     "",
     Need::kContacts,
     WriteSaf},
    {"vtu",
     {".vtu"},
     {"one grid with everything, for ParaView", "une grille avec tout, pour ParaView"},
     "",
     Need::kPoints,
     WriteVtu},
    {"vtm",
     {".vtm"},
     {"a grid for each kind of elements and each case, for ParaView",
      "une grille par genre d'élément et par cas, pour ParaView"},
     "",
     Need::kPoints,
     WriteVtm},
    {"glb",
     {".glb"},
     {"glTF 2.0, for viewers and modellers", "glTF 2.0, pour visionneuses et modeleurs"},
     "",
     Need::kPoints,
     WriteGlb},
};

bool EndsWith(std::string_view name, std::string_view ending)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    if (name.size() < ending.size()) return false;
    name.remove_prefix(name.size() - ending.size());
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (lower(name[i]) != ending[i]) return false;
    }
    return true;
}

}  // namespace

std::span<const Target> AllTargets()
{
    return kTargets;
}

const Target* FindTarget(std::string_view name)
{
    for (const Target& target : kTargets) {
        if (target.name == name) return &target;
    }
    return nullptr;
}

const Target* TargetOfOutput(std::string_view outputName)
{
    const Target* found = nullptr;
    std::size_t longest = 0;
    for (const Target& target : kTargets) {
        for (const std::string_view ending : target.endings) {
            if (ending.size() <= longest || !EndsWith(outputName, ending)) continue;
            found = &target;
            longest = ending.size();
        }
    }
    return found;
}

}  // namespace tamur::host
