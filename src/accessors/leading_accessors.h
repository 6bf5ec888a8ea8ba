// Accessors over the sections that stand before the elements.
#pragma once

#include "accessors/accessor.h"

namespace tamur {

class CTMRMaterialAccessor
    : public Accessor<ITMRMaterialAccessor, IID_ITMRMaterialAccessor, ArrayView<Material>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbMaterials(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetMaterialAtRank(LONG rank, TMRMaterial* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRSectionAccessor
    : public Accessor<ITMRSectionAccessor, IID_ITMRSectionAccessor, ArrayView<Section>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbSections(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetSectionAtRank(LONG rank,
                                               TMRSectionGeometry* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRAttacheAccessor
    : public Accessor<ITMRAttacheAccessor, IID_ITMRAttacheAccessor, ArrayView<Release>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbAttaches(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetAttacheAtRank(LONG rank, TMRAttache* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRGroupeAccessor
    : public Accessor<ITMRGroupeAccessor, IID_ITMRGroupeAccessor, ArrayView<Group>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbGroupes(LONG* count) noexcept override
    {
        return GetCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetGroupeAtRank(LONG rank, TMRGroupe* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

class CTMRCasAccessor : public Accessor<ITMRCasAccessor, IID_ITMRCasAccessor, CasesCopy> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbCas(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetCasAtRank(LONG rank, TMRCas* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
};

}  // namespace tamur
