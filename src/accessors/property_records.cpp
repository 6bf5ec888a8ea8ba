#include <algorithm>

#include "accessors/served_tables.h"
#include "accessors/type_names.h"

namespace tamur {

void Copy(const Settings& from, HostCopy&, TMRStructureData& to)
{
    switch (from.workSpace) {
        case WorkSpace::kPlane: to.espaceDeTravail = TMRWS_PLAN; break;
        case WorkSpace::kGrid: to.espaceDeTravail = TMRWS_GRILLE; break;
        case WorkSpace::kSpace: to.espaceDeTravail = TMRWS_SPATIAL; break;
    }
    to.tol3D = from.tolerance;
    to.rigideEnFlexion = from.isRigid ? TMRStructureRigide : TMRStructureNonRigide;
}

void Copy(const Material& from, HostCopy& host, TMRMaterial& to)
{
    to.MaterialName = host.String(from.name);
    to.E = from.constants->modulus;
    to.nu = from.constants->poisson;
    to.d = from.constants->density;
    to.alpha = from.constants->expansion;
    to.amortissement = from.constants->damping;
}

void Copy(const Section& from, HostCopy& host, TMRSectionGeometry& to)
{
    double constants[Section::kConstants] = {};
    std::copy_n(from.constants.values, from.constants.held, constants);
    to.SectionLib = host.String(from.name);
    to.Sx = constants[0];
    to.Sy = constants[1];
    to.Sz = constants[2];
    to.Ix = constants[3];
    to.Iy = constants[4];
    to.Iz = constants[5];
    to.Vx = constants[6];
    to.V1y = constants[7];
    to.V1z = constants[8];
    to.V2y = constants[9];
    to.V2z = constants[10];
    const Outline& outline = *from.outline;
    to.epureSec.Code = outline.code;
    to.epureSec.nbPoints = outline.pointCount;
    to.epureSec.pTabPoints = host.Array(outline.coordinates);
    to.epureSec.dfRadius = outline.radius;
}

void Copy(const Release& from, HostCopy& host, TMRAttache& to)
{
    to.AttacheLib = host.String(from.name);
    to.Rotules = static_cast<unsigned char>(from.rotations);
    to.Titre = host.String(from.title);
    to.Geom = host.String(from.geometry);
    to.Def = host.String(from.definition);
}

void Copy(const Group& from, HostCopy& host, TMRGroupe& to)
{
    to.Elem = from.elementKind;
    to.Num = from.number;
    to.Titre = host.String(from.title);
    to.TypEl = from.typeCode;
    to.TypeElementName = host.String(GroupTypeName(from.elementKind, from.typeCode));
    to.Affiche = from.isDisplayed;
}

}  // namespace tamur
