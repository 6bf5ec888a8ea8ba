// The accessor over the nodes.
#pragma once

#include "component/accessor_classes.h"

namespace tamur {

class CTMRNodeAccessor : public CTMRNodeAccessorTables {
 public:
    using CTMRNodeAccessorTables::CTMRNodeAccessorTables;

    HRESULT STDMETHODCALLTYPE GetNodes(TMRNode* tabNodes) noexcept override;
};

}  // namespace tamur
