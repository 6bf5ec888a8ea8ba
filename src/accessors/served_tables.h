// Which table of the model serves which record, and how an accessor sees it: a row for each table
// that the contract names.
#pragma once

#include "TAMURReader.h"
#include "accessors/views.h"
#include "model/model.h"

namespace tamur {

template <class PublicRecord>
struct As {
};

// A row is a line.
// clang-format off
inline auto See(As<TMRMaterial>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.barTables->materials; }); }
inline auto See(As<TMRSectionGeometry>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.barTables->sections; }); }
inline auto See(As<TMRAttache>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.barTables->releases; }); }
inline auto See(As<TMRGroupe>, const Model& m) { return ArrayView(m, [](auto& of) -> auto& { return of.groups.Groups(); }); }
inline auto See(As<TMRCas>, const Model& m) { return CasesCopy(m.cases); }

inline auto See(As<TMRNode>, const Model& m) { return CheckedView(m, m.nodes); }
inline auto See(As<TMRFilaire>, const Model& m) { return SharedBars(m.barTables); }
inline auto See(As<TMRSurfacique>, const Model& m) { return FrozenCountView(m, m.surfaces); }
inline auto See(As<TMROuverture>, const Model& m) { return FrozenCountView(m, m.openings); }
inline auto See(As<TMRParoi>, const Model& m) { return FrozenCountView(m, m.walls); }
inline auto See(As<TMRAppuiPonctuel>, const Model& m) { return LiveView(m, m.pointSupports); }
inline auto See(As<TMRAppuiLineaire>, const Model& m) { return LiveView(m, m.lineSupports); }
inline auto See(As<TMRAppuiSurfacique>, const Model& m) { return LiveView(m, m.surfaceSupports); }
inline auto See(As<TMRMasse>, const Model& m) { return LiveView(m, m.masses); }
inline auto See(As<TMRDeplacement>, const Model& m) { return LiveView(m, m.displacements); }
inline auto See(As<TMRSurfacicSection>, const Model& m) { return LiveView(m, m.surfaceSections); }
inline auto See(As<TMRLineInterieur>, const Model& m) { return LiveView(m, m.innerLines); }
inline auto See(As<TMRCable>, const Model& m) { return LiveView(m, m.cables); }
inline auto See(As<TMRLine>, const Model& m) { return LiveView(m, m.constructionLines); }

inline auto See(As<TMRChargePonctuelle>, const Model& m) { return LiveView(m, m.pointLoads); }
inline auto See(As<TMRChargeLineaire>, const Model& m) { return LiveView(m, m.lineLoads); }
inline auto See(As<TMRChargeSurfacique>, const Model& m) { return LiveView(m, m.surfaceLoads); }
inline auto See(As<TMRChargePoidsPropre>, const Model& m) { return LiveView(m, m.selfWeightLoads); }
inline auto See(As<TMRChargeThermique>, const Model& m) { return LiveView(m, m.thermalLoads); }
inline auto See(As<TMRChargeSismique>, const Model& m) { return LiveView(m, m.seismicCases); }
inline auto See(As<TMRCombinaison>, const Model& m) { return LiveView(m, m.combinations); }
inline auto See(As<TMREnveloppe>, const Model& m) { return LiveView(m, m.envelopes); }
// clang-format on

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
