// Accessors over the elements of the structure.
#pragma once

#include "accessors/accessor.h"

namespace tamur {

class CTMRFilaireAccessor
    : public Accessor<ITMRFilaireAccessor, IID_ITMRFilaireAccessor, SharedBars> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbFilaires(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetFilaireAtRank(LONG rank, TMRFilaire* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRSurfaciqueAccessor
    : public ErrorInfoAccessor<ITMRSurfaciqueAccessor, IID_ITMRSurfaciqueAccessor,
                               FrozenCountView<Surface>> {
 public:
    using ErrorInfoAccessor::ErrorInfoAccessor;

    // As hosts create it: without a reader there are no surfaces.
    CTMRSurfaciqueAccessor() : CTMRSurfaciqueAccessor({NoModel(), NoModel().surfaces}) {}

    HRESULT STDMETHODCALLTYPE GetNbSurfaciques(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetSurfaciqueAtRank(LONG rank,
                                                  TMRSurfacique* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMROuvertureAccessor
    : public ErrorInfoAccessor<ITMROuvertureAccessor, IID_ITMROuvertureAccessor,
                               FrozenCountView<Opening>> {
 public:
    using ErrorInfoAccessor::ErrorInfoAccessor;

    HRESULT STDMETHODCALLTYPE GetNbOuvertures(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetOuvertureAtRank(LONG rank, TMROuverture* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRParoiAccessor
    : public ErrorInfoAccessor<ITMRParoiAccessor, IID_ITMRParoiAccessor, FrozenCountView<Wall>> {
 public:
    using ErrorInfoAccessor::ErrorInfoAccessor;

    HRESULT STDMETHODCALLTYPE GetNbParois(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetParoiAtRank(LONG rank, TMRParoi* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRMasseAccessor
    : public Accessor<ITMRMasseAccessor, IID_ITMRMasseAccessor, LiveView<Table<Mass>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbMasses(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetMasseAtRank(LONG rank, TMRMasse* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRCableAccessor
    : public Accessor<ITMRCableAccessor, IID_ITMRCableAccessor, LiveView<Table<Cable>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbCables(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetCableAtRank(LONG rank, TMRCable* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRLineAideAccessor : public Accessor<ITMRLineAideAccessor, IID_ITMRLineAideAccessor,
                                             LiveView<Table<ConstructionLine>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbLines(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetLineAtRank(LONG rank, TMRLine* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRLineInterieurAccessor
    : public Accessor<ITMRLineInterieurAccessor, IID_ITMRLineInterieurAccessor,
                      LiveView<Table<InnerLine>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbLinesInt(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetLineIntAtRank(LONG rank,
                                               TMRLineInterieur* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRSurfacicSectionAccessor
    : public Accessor<ITMRSurfacicSectionAccessor, IID_ITMRSurfacicSectionAccessor,
                      LiveView<Table<SurfaceSection>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbSurfacicSections(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetSurfacicSectionAtRank(LONG rank,
                                                       TMRSurfacicSection* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

}  // namespace tamur
