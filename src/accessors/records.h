// Internal records into the records that hosts know. Each function feeds every field of the
// public record but those it says.
#pragma once

#include <tamur/records.h>

#include "TAMURReader.h"
#include "accessors/host_copy.h"
#include "model/model.h"

namespace tamur {

void Copy(const Material& from, const Model&, HostCopy& host, TMRMaterial& to);
void Copy(const Section& from, const Model&, HostCopy& host, TMRSectionGeometry& to);
void Copy(const Release& from, const Model&, HostCopy& host, TMRAttache& to);
void Copy(const Group& from, const Model&, HostCopy& host, TMRGroupe& to);

void Copy(const Node& from, const Model&, HostCopy& host, TMRNode& to);
void Copy(const Bar& from, const Model& model, HostCopy& host, TMRFilaire& to);
void Copy(const Surface& from, const Model& model, HostCopy& host, TMRSurfacique& to);
void Copy(const Opening& from, const Model&, HostCopy& host, TMROuverture& to);
void Copy(const Wall& from, const Model&, HostCopy& host, TMRParoi& to);
void Copy(const PointSupport& from, const Model&, HostCopy& host, TMRAppuiPonctuel& to);
void Copy(const LineSupport& from, const Model&, HostCopy& host, TMRAppuiLineaire& to);
void Copy(const SurfaceSupport& from, const Model&, HostCopy& host, TMRAppuiSurfacique& to);
void Copy(const Mass& from, const Model&, HostCopy& host, TMRMasse& to);
void Copy(const Displacement& from, const Model&, HostCopy& host, TMRDeplacement& to);
void Copy(const SurfaceSection& from, const Model&, HostCopy& host, TMRSurfacicSection& to);
void Copy(const InnerLine& from, const Model&, HostCopy& host, TMRLineInterieur& to);
void Copy(const Cable& from, const Model&, HostCopy& host, TMRCable& to);
void Copy(const ConstructionLine& from, const Model&, HostCopy& host, TMRLine& to);

void Copy(const LoadCase& from, const Model&, HostCopy& host, TMRCas& to);
void Copy(const PointLoad& from, const Model&, HostCopy& host, TMRChargePonctuelle& to);
void Copy(const LineLoad& from, const Model&, HostCopy& host, TMRChargeLineaire& to);
void Copy(const SurfaceLoad& from, const Model&, HostCopy& host, TMRChargeSurfacique& to);
// These two leave GroupNumber and ElementType as they are.
void Copy(const GroupLoad& from, const Model&, HostCopy& host, TMRChargePoidsPropre& to);
void Copy(const GroupLoad& from, const Model&, HostCopy& host, TMRChargeThermique& to);
void Copy(const SeismicCase& from, const Model&, HostCopy& host, TMRChargeSismique& to);
void Copy(const Combination& from, const Model&, HostCopy& host, TMRCombinaison& to);
void Copy(const Envelope& from, const Model&, HostCopy& host, TMREnveloppe& to);
void Copy(const Modes& from, const Model&, HostCopy& host, TMRModes& to);

// Fills a host's record; what it held is overwritten, not freed. When memory runs out the record is
// left empty and `failure` is the result.
template <class Record, class PublicRecord>
HRESULT Deliver(const Record& from, const Model& model, PublicRecord* to, HRESULT failure) noexcept
{
    HostCopy host;
    Copy(from, model, host, *to);
    if (!host.HasFailed()) return S_OK;
    VisitFields(*to, FieldFreer());
    *to = {};
    return failure;
}

}  // namespace tamur
