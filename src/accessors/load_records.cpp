#include <cstring>

#include "accessors/served_tables.h"

namespace tamur {
namespace {

template <class Record, class PublicRecord>
void CopyForce(const Record& from, PublicRecord& to)
{
    to.NumCas = from.caseNumber;
    to.Repere = from.frame;
    to.Fx = from.force[0];
    to.Fy = from.force[1];
    to.Fz = from.force[2];
}

template <class Record, class PublicRecord>
void CopyMoments(const Record& from, PublicRecord& to)
{
    to.Mx = from.moment[0];
    to.My = from.moment[1];
    to.Mz = from.moment[2];
}

template <class PublicRecord>
void CopyGroupLoad(const GroupLoad& from, PublicRecord& to)
{
    to.identifier = static_cast<LONG>(from.identifier);
    to.NumCas = from.caseNumber;
    to.Repere = 0;
    to.ElemGrp = from.elementKind;
    to.NumGrp = from.group;
}

}  // namespace

void Copy(const LoadCase& from, HostCopy& host, TMRCas& to)
{
    to.Num = from.number;
    to.Type = from.type;
    to.Titre = host.String(from.title);
    to.Code = host.String(from.code);
}

void Copy(const PointLoad& from, HostCopy&, TMRChargePonctuelle& to)
{
    to.identifier = static_cast<LONG>(from.identifier);
    CopyForce(from, to);
    CopyMoments(from, to);
    to.Geometrie = ToPublic(from.position);
}

void Copy(const LineLoad& from, HostCopy&, TMRChargeLineaire& to)
{
    to.identifier = static_cast<LONG>(from.identifier);
    CopyForce(from, to);
    CopyMoments(from, to);
    to.intensityDebut = from.intensityStart;
    to.intensityFin = from.intensityEnd;
    to.Geometrie = ToPublic(from.line);
}

void Copy(const SurfaceLoad& from, HostCopy& host, TMRChargeSurfacique& to)
{
    to.identifier = static_cast<LONG>(from.identifier);
    CopyForce(*from.columns, to);
    to.intensiteI = from.columns->intensity[0];
    to.intensiteJ = from.columns->intensity[1];
    to.intensiteK = from.columns->intensity[2];
    to.Geometrie = host.Polygon(from.outline);
}

void Copy(const GroupLoad& from, HostCopy&, TMRChargePoidsPropre& to)
{
    CopyGroupLoad(from, to);
    to.dX = from.values[0];
    to.dY = from.values[1];
    to.dZ = from.values[2];
}

void Copy(const GroupLoad& from, HostCopy&, TMRChargeThermique& to)
{
    CopyGroupLoad(from, to);
    to.DeltaT = from.values[0];
    to.Gy = from.values[1];
    to.Gz = from.values[2];
}

void Copy(const SeismicCase& from, HostCopy& host, TMRChargeSismique& to)
{
    to.lIdentifier = 0;
    to.iNumCas = from.caseNumber;
    to.iDirection = from.direction;
    to.dDisplacementsReductionCoeff = from.displacementReduction;
    to.dForcesReductionCoeff = from.forceReduction;
    to.bReductionCoeffCalculation = from.computesReduction;
    to.iSignChoice = from.signChoice;
    to.iMode = from.mode;
    to.iPointsSpectrum = from.pointCount;
    to.pPeriodsSpectrum = host.Array(from.periods, from.pointCount);
    to.pAccelerationSpectrum = host.Array(from.accelerations, from.pointCount);
    to.iSite = from.site;
    to.iWorkClass = from.workClass;
    to.dDuctilityCoeff = from.ductility;
    to.dLayerOfSoil = from.soilLayer;
    to.bRisk = from.risk;
    to.iKinfOfSoil = from.soilKind;
    to.dTopographicCoeff = from.topography;
    to.iZone = from.zone;
    to.bDampingsLimitation = from.limitsDampings;
}

void Copy(const Combination& from, HostCopy& host, TMRCombinaison& to)
{
    to.iNumCas = from.caseNumber;
    to.iNbCmb = from.termCount;
    to.pNumCas = host.Array(from.cases, from.termCount);
    to.pCoeff = host.Array(from.factors, from.termCount);
}

void Copy(const Envelope& from, HostCopy& host, TMREnveloppe& to)
{
    to.iNumCas = from.caseNumber;
    to.iGrandeur = from.quantity;
    to.iParamEnveloppeN = from.envelopes.n;
    to.iParamEnveloppeA = from.envelopes.a;
    to.iParamEnveloppeF = from.envelopes.f;
    to.iParamEnveloppeS = from.envelopes.s;
    to.iParamValeurN = from.values.n;
    to.iParamValeurA = from.values.a;
    to.iParamValeurF = from.values.f;
    to.iParamValeurS = from.values.s;
    to.bConserverCas = from.keepsCase;
    to.iNbCases = from.cases.count;
    to.pCases = host.Array(from.cases);
}

void Copy(const Modes& from, HostCopy& host, TMRModes& to)
{
    to.iNrOfModes = from.dampings.count;
    to.dPercentX = from.percent[0];
    to.dPercentY = from.percent[1];
    to.dPercentZ = from.percent[2];
    to.iMassChoice = from.massChoice;
    std::memcpy(to.pNumCas, from.cases, sizeof to.pNumCas);
    std::memcpy(to.pCoeffCas, from.factors, sizeof to.pCoeffCas);
    to.bComputeDampings = from.computesDampings;
    to.pDampingValues = host.Array(from.dampings);
    to.iCalculMethod = from.method;
    to.bResidualMode = from.residualMode;
}

}  // namespace tamur
