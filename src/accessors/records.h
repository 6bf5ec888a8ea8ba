// Internal records into the records that hosts know. Each function feeds every field of the
// public record but those it says. Bars and surfaces refer to other records by their place in
// tables.
#pragma once

#include <tamur/records.h>

#include <type_traits>

#include "TAMURReader.h"
#include "accessors/host_copy.h"
#include "model/bar_tables.h"
#include "model/model.h"

namespace tamur {

void Copy(const Settings& from, HostCopy&, TMRStructureData& to);
void Copy(const Material& from, HostCopy& host, TMRMaterial& to);
void Copy(const Section& from, HostCopy& host, TMRSectionGeometry& to);
void Copy(const Release& from, HostCopy& host, TMRAttache& to);
void Copy(const Group& from, HostCopy& host, TMRGroupe& to);

void Copy(const Node& from, HostCopy& host, TMRNode& to);
void Copy(const Bar& from, const BarTables& tables, HostCopy& host, TMRFilaire& to);
void Copy(const Surface& from, const BarTables& tables, HostCopy& host, TMRSurfacique& to);
void Copy(const Opening& from, HostCopy& host, TMROuverture& to);
void Copy(const Wall& from, HostCopy& host, TMRParoi& to);
void Copy(const PointSupport& from, HostCopy& host, TMRAppuiPonctuel& to);
void Copy(const LineSupport& from, HostCopy& host, TMRAppuiLineaire& to);
void Copy(const SurfaceSupport& from, HostCopy& host, TMRAppuiSurfacique& to);
void Copy(const Mass& from, HostCopy& host, TMRMasse& to);
void Copy(const Displacement& from, HostCopy& host, TMRDeplacement& to);
void Copy(const SurfaceSection& from, HostCopy& host, TMRSurfacicSection& to);
void Copy(const InnerLine& from, HostCopy& host, TMRLineInterieur& to);
void Copy(const Cable& from, HostCopy& host, TMRCable& to);
void Copy(const ConstructionLine& from, HostCopy& host, TMRLine& to);

void Copy(const LoadCase& from, HostCopy& host, TMRCas& to);
void Copy(const PointLoad& from, HostCopy& host, TMRChargePonctuelle& to);
void Copy(const LineLoad& from, HostCopy& host, TMRChargeLineaire& to);
void Copy(const SurfaceLoad& from, HostCopy& host, TMRChargeSurfacique& to);
// These two leave GroupNumber and ElementType as they are.
void Copy(const GroupLoad& from, HostCopy& host, TMRChargePoidsPropre& to);
void Copy(const GroupLoad& from, HostCopy& host, TMRChargeThermique& to);
void Copy(const SeismicCase& from, HostCopy& host, TMRChargeSismique& to);
void Copy(const Combination& from, HostCopy& host, TMRCombinaison& to);
void Copy(const Envelope& from, HostCopy& host, TMREnveloppe& to);
void Copy(const Modes& from, HostCopy& host, TMRModes& to);

// Whether a record refers to no other.
template <class Record, class PublicRecord>
concept IsWhole = requires(const Record& from, HostCopy& host, PublicRecord& to)
{
    Copy(from, host, to);
};

// Fills a host's record; what it held is overwritten, not freed. When memory runs out the record is
// left empty and `failure` is the result.
template <class Record, class PublicRecord, class... Referred>
HRESULT Deliver(HRESULT failure, PublicRecord* to, const Record& from,
                const Referred&... tables) noexcept
{
    HostCopy host;
    Copy(from, tables..., host, *to);
    if (!host.HasFailed()) return S_OK;
    VisitFields(*to, FieldFreer());
    *to = {};
    return failure;
}

// Fills a host's record with the one that a view has at that rank.
template <class View, class PublicRecord>
HRESULT DeliverFrom(const View& view, LONG rank, PublicRecord* to) noexcept
{
    const auto& from = view.At(rank);
    if constexpr (IsWhole<std::remove_cvref_t<decltype(from)>, PublicRecord>) {
        return Deliver(View::kCopyFailure, to, from);
    } else {
        return Deliver(View::kCopyFailure, to, from, view.Referred());
    }
}

}  // namespace tamur
