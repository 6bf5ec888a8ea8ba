// Accessors over supports and imposed displacements.
#pragma once

#include "accessors/accessor.h"

namespace tamur {

class CTMRAppuiPonctuelAccessor
    : public Accessor<ITMRAppuiPonctuelAccessor, IID_ITMRAppuiPonctuelAccessor,
                      LiveView<Table<PointSupport>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbAppui(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetAppuiAtRank(LONG rank, TMRAppuiPonctuel* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRAppuiLineaireAccessor
    : public Accessor<ITMRAppuiLineaireAccessor, IID_ITMRAppuiLineaireAccessor,
                      LiveView<Table<LineSupport>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbAppui(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetAppuiAtRank(LONG rank, TMRAppuiLineaire* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRAppuiSurfaciqueAccessor
    : public Accessor<ITMRAppuiSurfaciqueAccessor, IID_ITMRAppuiSurfaciqueAccessor,
                      LiveView<Table<SurfaceSupport>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbAppui(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetAppuiAtRank(LONG rank,
                                             TMRAppuiSurfacique* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRDeplacementAccessor
    : public Accessor<ITMRDeplacementAccessor, IID_ITMRDeplacementAccessor,
                      LiveView<Table<Displacement>>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbDeplacements(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetDeplacementAtRank(LONG rank,
                                                   TMRDeplacement* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

}  // namespace tamur
