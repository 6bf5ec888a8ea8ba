#include <cstring>

#include "accessors/bar_values.h"
#include "accessors/served_tables.h"
#include "accessors/type_names.h"

namespace tamur {
namespace {

// The record at a place from 1; an empty one when there is none.
template <class Record, class PublicRecord>
void CopyReferred(const Table<Record>& table, std::uint32_t place, HostCopy& host, PublicRecord& to)
{
    Copy(place == 0 ? Record() : table[place - 1], host, to);
}

LONG ToPublic(std::uint32_t identifier)
{
    return static_cast<LONG>(identifier);
}

// Null when there is no remark.
BSTR RemarkOf(const Bar& bar, HostCopy& host)
{
    const WideStringView text = BarRemarkText(bar.remarks);
    return text.empty() ? nullptr : host.String(text);
}

// Some element types are texts of which only the length means anything.
WideStringView Blanks(std::size_t length)
{
    static constexpr WideStringView kBlanks = OLESTR("                     ");
    return kBlanks.substr(0, length);
}

template <class PublicRecord>
void CopySupport(const Support& from, SupportKind kind, HostCopy& host, PublicRecord& to)
{
    const SupportColumns& columns = *from.columns;
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = columns.group;
    to.ElemLabels = host.Labels(from.labels);
    to.ElementType = host.String(SupportTypeText(kind, columns.condition));
    std::memcpy(to.Raideurs, columns.stiffness, sizeof to.Raideurs);
    std::memcpy(to.Amortissements, columns.damping, sizeof to.Amortissements);
}

}  // namespace

void Copy(const Node& from, HostCopy& host, TMRNode& to)
{
    to.identifier = ToPublic(from.identifier);
    to.ElemLabels = host.Labels(from.labels);
    to.blocage = from.fixity;
    to.Geometrie = ToPublic(from.position);
}

void Copy(const Bar& from, const BarTables& tables, HostCopy& host, TMRFilaire& to)
{
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = from.group;
    to.ElemLabels = host.Labels(from.labels);
    to.ElementType = host.String(BarTypeName(from.type));
    to.ErrorMessage = RemarkOf(from, host);
    to.MeshStep = from.meshStep;
    to.RealLength = WholeLength(LengthOf(from.line));
    CopyReferred(tables.sections.all, from.startSection, host, to.StartSection);
    CopyReferred(tables.sections.all, from.endSection, host, to.EndSection);
    CopyReferred(tables.releases, from.startRelease, host, to.StartConnection);
    CopyReferred(tables.releases, from.endRelease, host, to.EndConnection);
    CopyReferred(tables.materials, from.material, host, to.FilaireMaterial);
    to.CogPosition = host.String(kBarAxisPosition);
    to.Angle = from.angle;
    to.OrientationNode = from.orientationNode;
    to.Excentration = static_cast<TMRFilaireExcentration>(from.offset);
    to.startPoint = ToPublic(from.line.start);
    to.endPoint = ToPublic(from.line.end);
}

void Copy(const Surface& from, const BarTables& tables, HostCopy& host, TMRSurfacique& to)
{
    const SurfaceColumns& columns = *from.columns;
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = columns.group;
    to.ElemLabels = host.Labels(from.labels);
    to.ElementType = host.String(SurfaceTypeName(columns.type));
    CopyReferred(tables.materials, from.material, host, to.SurfaciqueMaterial);
    to.Surface = host.Polygon(from.outline);
    to.PenteX = columns.slopeX;
    to.PenteY = columns.slopeY;
    to.Thickness = columns.thickness;
    to.MeshType = static_cast<TMRTypeMaillageSurfacique>(columns.meshType);
    to.NbXMesh = columns.meshX;
    to.NbYMesh = columns.meshY;
}

void Copy(const Opening& from, HostCopy& host, TMROuverture& to)
{
    to.identifier = ToPublic(from.identifier);
    to.ElemLabels = host.Labels(from.labels);
    to.Surface = host.Polygon(from.outline);
    to.NbXMesh = from.meshX;
    to.NbYMesh = from.meshY;
}

void Copy(const Wall& from, HostCopy& host, TMRParoi& to)
{
    const WallColumns& columns = *from.columns;
    List<double> spanCoefficients = columns.spanCoefficients;
    spanCoefficients.count = from.outline.count;
    to.identifier = ToPublic(from.identifier);
    to.Surface = host.Polygon(from.outline);
    to.ElemLabels = host.Labels(from.labels);
    to.iSensPortee = columns.spanDirection;
    to.bNeige = columns.snow;
    to.bAccumulation = columns.accumulation;
    to.iModeAccumulation = columns.accumulationMode;
    to.dCoefLongueur = columns.lengthCoefficient;
    to.dCoefPaNormale = columns.normalA;
    to.dCoefPbNormale = columns.normalB;
    to.dCoefPaExtreme = columns.extremeA;
    to.dCoefPbExtreme = columns.extremeB;
    to.bVent = columns.wind;
    to.iVentType = columns.windType;
    to.dPermeabilite = columns.permeability;
    for (int k = 0; k < 4; ++k) {
        to.iStatutVent[k] = columns.zones[k].status;
        to.dCe[k] = columns.zones[k].external;
        to.dCiSupression[k] = columns.zones[k].overpressure;
        to.dCiDepression[k] = columns.zones[k].depression;
    }
    to.portCoef.nbPoints = from.outline.count;
    to.portCoef.tabCoef = host.Array(spanCoefficients);
}

void Copy(const PointSupport& from, HostCopy& host, TMRAppuiPonctuel& to)
{
    CopySupport(from, SupportKind::kPoint, host, to);
    to.Surface = from.area;
    to.Angle = from.angle;
    to.NdOri = from.orientationNode;
    to.Geometrie = ToPublic(from.position);
}

void Copy(const LineSupport& from, HostCopy& host, TMRAppuiLineaire& to)
{
    CopySupport(from, SupportKind::kLine, host, to);
    to.Surface = from.area;
    to.Angle = from.angle;
    to.Repere = APP_P_REP_GLOBAL;
    to.Geometrie = ToPublic(from.line);
}

void Copy(const SurfaceSupport& from, HostCopy& host, TMRAppuiSurfacique& to)
{
    CopySupport(from, SupportKind::kSurface, host, to);
    to.Geometrie = host.Polygon(from.outline);
}

void Copy(const Mass& from, HostCopy& host, TMRMasse& to)
{
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = 0;
    to.ElemLabels = host.Labels(from.labels);
    to.ElementType = host.String(OLESTR(""));
    to.NumCas = 0;
    to.Repere = 0;
    to.Mx = from.mass[0];
    to.My = from.mass[1];
    to.Mz = from.mass[2];
    to.Ix = from.inertia[0];
    to.Iy = from.inertia[1];
    to.Iz = from.inertia[2];
    to.Geometrie = ToPublic(from.position);
}

void Copy(const Displacement& from, HostCopy& host, TMRDeplacement& to)
{
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = from.group;
    to.ElementType = host.String(Blanks(12));
    to.dX = from.translation[0];
    to.dY = from.translation[1];
    to.dZ = from.translation[2];
    to.Rx = from.rotation[0];
    to.Ry = from.rotation[1];
    to.Rz = from.rotation[2];
    to.Geometrie = ToPublic(from.position);
}

void Copy(const SurfaceSection& from, HostCopy& host, TMRSurfacicSection& to)
{
    to.identifier = ToPublic(from.identifier);
    to.Couche = from.layer;
    to.ElementType = host.String(Blanks(15));
    to.Geometrie = ToPublic(from.line);
}

void Copy(const InnerLine& from, HostCopy& host, TMRLineInterieur& to)
{
    to.lIdentifier = ToPublic(from.identifier);
    to.iMaillage = from.mesh;
    to.ElemLabels = host.Labels(from.labels);
    to.Geometrie = ToPublic(from.line);
}

void Copy(const Cable& from, HostCopy& host, TMRCable& to)
{
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = from.group;
    to.ElementType = host.String(Blanks(21));
    to.NumCas = from.caseNumber;
    to.Repere = from.frame;
    to.Geometrie = ToPublic(from.line);
}

void Copy(const ConstructionLine& from, HostCopy& host, TMRLine& to)
{
    to.identifier = ToPublic(from.identifier);
    to.GroupNumber = from.group;
    to.ElemLabels = host.Labels(from.labels);
    to.ElementType = host.String(OLESTR("Ligne"));
    to.NrElements = from.elementCount;
    to.Spacing = from.spacing;
    to.SizeElements = from.elementSize;
    to.SpacingFactor = from.spacingFactor;
    to.Geometrie = ToPublic(from.line);
}

}  // namespace tamur
