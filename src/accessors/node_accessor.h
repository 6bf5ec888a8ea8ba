// The accessor over the nodes.
#pragma once

#include "accessors/accessor.h"

namespace tamur {

class CTMRNodeAccessor
    : public Accessor<ITMRNodeAccessor, IID_ITMRNodeAccessor, CheckedView<Node>> {
 public:
    using Accessor::Accessor;

    HRESULT STDMETHODCALLTYPE GetNbNodes(LONG* count) noexcept override { return GetCount(count); }
    HRESULT STDMETHODCALLTYPE GetNodeAtRank(LONG rank, TMRNode* record) noexcept override
    {
        return GetAtRank(rank, record);
    }
    HRESULT STDMETHODCALLTYPE GetNodes(TMRNode* tabNodes) noexcept override;
};

}  // namespace tamur
