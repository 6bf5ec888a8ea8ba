#include "host/export/tables/units.h"

#include <algorithm>
#include <iterator>

namespace tamur::host {
namespace {

// For every table when it names none, and for every path that ends with a point and that when it
// begins with a star. The first that fits counts.
struct Row {
    std::string_view table, path, unit;
};

constexpr Row kRows[] = {
    {"", "*x", "m"},
    {"", "*y", "m"},
    {"", "*z", "m"},
    {"", "tol3D", "m"},
    {"Materials", "E", "N/m2"},
    {"Materials", "d", "N/m3"},
    {"Materials", "alpha", "1/K"},
    {"Sections", "Sx", "m2"},
    {"Sections", "Sy", "m2"},
    {"Sections", "Sz", "m2"},
    {"Sections", "Ix", "m4"},
    {"Sections", "Iy", "m4"},
    {"Sections", "Iz", "m4"},
    {"Sections", "Vx", "m3"},
    {"Sections", "V1y", "m3"},
    {"Sections", "V1z", "m3"},
    {"Sections", "V2y", "m3"},
    {"Sections", "V2z", "m3"},
    {"Sections", "epureSec.dfRadius", "m"},
    {"Sections", "pTabPoints[1]", "m"},
    {"Sections", "pTabPoints[2]", "m"},
    {"Filaires", "RealLength", "m"},
    {"", "Angle", "deg"},
    {"Surfaciques", "Thickness", "m"},
    {"Lines", "SizeElements", "m"},
    {"AppuisPonctuels", "Raideurs[1]", "N/m"},
    {"AppuisPonctuels", "Raideurs[2]", "N/m"},
    {"AppuisPonctuels", "Raideurs[3]", "N/m"},
    {"AppuisPonctuels", "Raideurs[4]", "N.m/rad"},
    {"AppuisPonctuels", "Raideurs[5]", "N.m/rad"},
    {"AppuisPonctuels", "Raideurs[6]", "N.m/rad"},
    {"AppuisLineaires", "Raideurs[1]", "N/m2"},
    {"AppuisLineaires", "Raideurs[2]", "N/m2"},
    {"AppuisLineaires", "Raideurs[3]", "N/m2"},
    {"AppuisLineaires", "Raideurs[4]", "N.m/rad/m"},
    {"AppuisLineaires", "Raideurs[5]", "N.m/rad/m"},
    {"AppuisLineaires", "Raideurs[6]", "N.m/rad/m"},
    {"AppuisSurfaciques", "Raideurs[1]", "N/m3"},
    {"AppuisSurfaciques", "Raideurs[2]", "N/m3"},
    {"AppuisSurfaciques", "Raideurs[3]", "N/m3"},
    {"AppuisSurfaciques", "Raideurs[4]", "N.m/rad/m2"},
    {"AppuisSurfaciques", "Raideurs[5]", "N.m/rad/m2"},
    {"AppuisSurfaciques", "Raideurs[6]", "N.m/rad/m2"},
    {"Deplacements", "dX", "m"},
    {"Deplacements", "dY", "m"},
    {"Deplacements", "dZ", "m"},
    {"Deplacements", "Rx", "rad"},
    {"Deplacements", "Ry", "rad"},
    {"Deplacements", "Rz", "rad"},
    {"ChargesPonctuelles", "Fx", "N"},
    {"ChargesPonctuelles", "Fy", "N"},
    {"ChargesPonctuelles", "Fz", "N"},
    {"ChargesPonctuelles", "Mx", "N.m"},
    {"ChargesPonctuelles", "My", "N.m"},
    {"ChargesPonctuelles", "Mz", "N.m"},
    {"ChargesLineaires", "intensityDebut", "N/m"},
    {"ChargesLineaires", "intensityFin", "N/m"},
    {"ChargesSurfaciques", "intensiteI", "N/m2"},
    {"ChargesSurfaciques", "intensiteJ", "N/m2"},
    {"ChargesSurfaciques", "intensiteK", "N/m2"},
    {"ChargesThermiques", "DeltaT", "K"},
    {"ChargesThermiques", "Gy", "K/m"},
    {"ChargesThermiques", "Gz", "K/m"},
    {"ChargesSismiques", "pPeriodsSpectrum", "s"},
};

bool Fits(const Row& row, std::string_view table, std::string_view path)
{
    if (!row.table.empty() && row.table != table) return false;
    if (!row.path.starts_with('*')) return row.path == path;
    const std::string_view last = row.path.substr(1);
    return path == last || (path.ends_with(last) && path[path.size() - last.size() - 1] == '.');
}

}  // namespace

std::string_view UnitOf(std::string_view table, std::string_view path)
{
    const auto found = std::find_if(std::begin(kRows), std::end(kRows),
                                    [&](const Row& row) { return Fits(row, table, path); });
    return found == std::end(kRows) ? std::string_view() : found->unit;
}

}  // namespace tamur::host
