// Which table of the model serves which record, how an accessor sees it and how its records are
// copied: a row for each table that the contract names. Bars and surfaces refer to other records by
// their place in tables.
#pragma once

#include "TAMURReader.h"
#include "accessors/host_copy.h"
#include "accessors/views.h"
#include "model/bar_tables.h"
#include "model/model.h"

namespace tamur {

template <class PublicRecord>
struct As {
};

// Copy feeds every field of the public record but those it says; See is a line.
// clang-format off
void Copy(const Material& from, HostCopy& host, TMRMaterial& to);
inline auto See(As<TMRMaterial>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.barTables->materials; }); }

void Copy(const Section& from, HostCopy& host, TMRSectionGeometry& to);
inline auto See(As<TMRSectionGeometry>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.barTables->sections; }); }

void Copy(const Release& from, HostCopy& host, TMRAttache& to);
inline auto See(As<TMRAttache>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.barTables->releases; }); }

void Copy(const Group& from, HostCopy& host, TMRGroupe& to);
inline auto See(As<TMRGroupe>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.groups.Groups(); }); }

void Copy(const LoadCase& from, HostCopy& host, TMRCas& to);
inline auto See(As<TMRCas>, const Model& m) { return CasesCopy(m.cases); }

void Copy(const Node& from, HostCopy& host, TMRNode& to);
inline auto See(As<TMRNode>, const Model& m) { return CheckedView(m, m.nodes); }

void Copy(const Bar& from, const BarTables& tables, HostCopy& host, TMRFilaire& to);
inline auto See(As<TMRFilaire>, const Model& m) { return SharedBars(m.barTables); }

void Copy(const Surface& from, const BarTables& tables, HostCopy& host, TMRSurfacique& to);
inline auto See(As<TMRSurfacique>, const Model& m) { return FrozenCountView(m, m.surfaces); }

void Copy(const Opening& from, HostCopy& host, TMROuverture& to);
inline auto See(As<TMROuverture>, const Model& m) { return FrozenCountView(m, m.openings); }

void Copy(const Wall& from, HostCopy& host, TMRParoi& to);
inline auto See(As<TMRParoi>, const Model& m) { return FrozenCountView(m, m.walls); }

void Copy(const PointSupport& from, HostCopy& host, TMRAppuiPonctuel& to);
inline auto See(As<TMRAppuiPonctuel>, const Model& m) { return LiveView(m, m.pointSupports); }

void Copy(const LineSupport& from, HostCopy& host, TMRAppuiLineaire& to);
inline auto See(As<TMRAppuiLineaire>, const Model& m) { return LiveView(m, m.lineSupports); }

void Copy(const SurfaceSupport& from, HostCopy& host, TMRAppuiSurfacique& to);
inline auto See(As<TMRAppuiSurfacique>, const Model& m) { return LiveView(m, m.surfaceSupports); }

void Copy(const Mass& from, HostCopy& host, TMRMasse& to);
inline auto See(As<TMRMasse>, const Model& m) { return LiveView(m, m.masses); }

void Copy(const Displacement& from, HostCopy& host, TMRDeplacement& to);
inline auto See(As<TMRDeplacement>, const Model& m) { return LiveView(m, m.displacements); }

void Copy(const SurfaceSection& from, HostCopy& host, TMRSurfacicSection& to);
inline auto See(As<TMRSurfacicSection>, const Model& m) { return LiveView(m, m.surfaceSections); }

void Copy(const InnerLine& from, HostCopy& host, TMRLineInterieur& to);
inline auto See(As<TMRLineInterieur>, const Model& m) { return LiveView(m, m.innerLines); }

void Copy(const Cable& from, HostCopy& host, TMRCable& to);
inline auto See(As<TMRCable>, const Model& m) { return LiveView(m, m.cables); }

void Copy(const ConstructionLine& from, HostCopy& host, TMRLine& to);
inline auto See(As<TMRLine>, const Model& m) { return LiveView(m, m.constructionLines); }

void Copy(const PointLoad& from, HostCopy& host, TMRChargePonctuelle& to);
inline auto See(As<TMRChargePonctuelle>, const Model& m) { return LiveView(m, m.pointLoads); }

void Copy(const LineLoad& from, HostCopy& host, TMRChargeLineaire& to);
inline auto See(As<TMRChargeLineaire>, const Model& m) { return LiveView(m, m.lineLoads); }

void Copy(const SurfaceLoad& from, HostCopy& host, TMRChargeSurfacique& to);
inline auto See(As<TMRChargeSurfacique>, const Model& m) { return LiveView(m, m.surfaceLoads); }

// GroupNumber and ElementType stay as they are.
void Copy(const GroupLoad& from, HostCopy& host, TMRChargePoidsPropre& to);
inline auto See(As<TMRChargePoidsPropre>, const Model& m) { return LiveView(m, m.selfWeightLoads); }

// GroupNumber and ElementType stay as they are.
void Copy(const GroupLoad& from, HostCopy& host, TMRChargeThermique& to);
inline auto See(As<TMRChargeThermique>, const Model& m) { return LiveView(m, m.thermalLoads); }

void Copy(const SeismicCase& from, HostCopy& host, TMRChargeSismique& to);
inline auto See(As<TMRChargeSismique>, const Model& m) { return LiveView(m, m.seismicCases); }

void Copy(const Combination& from, HostCopy& host, TMRCombinaison& to);
inline auto See(As<TMRCombinaison>, const Model& m) { return LiveView(m, m.combinations); }

void Copy(const Envelope& from, HostCopy& host, TMREnveloppe& to);
inline auto See(As<TMREnveloppe>, const Model& m) { return LiveView(m, m.envelopes); }
// clang-format on

// The two records that are no table.
void Copy(const Settings& from, HostCopy&, TMRStructureData& to);
void Copy(const Modes& from, HostCopy& host, TMRModes& to);

// The accessors that also say for which interface they would set error information.
template <class Interface>
inline constexpr bool kSupportsErrorInfo = false;
template <>
inline constexpr bool kSupportsErrorInfo<ITMRSurfaciqueAccessor> = true;
template <>
inline constexpr bool kSupportsErrorInfo<ITMROuvertureAccessor> = true;
template <>
inline constexpr bool kSupportsErrorInfo<ITMRParoiAccessor> = true;

}  // namespace tamur
