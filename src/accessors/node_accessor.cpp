#include "accessors/node_accessor.h"

namespace tamur {

HRESULT CTMRNodeAccessor::GetNodes(TMRNode* tabNodes) noexcept
{
    LONG count = 0;
    (void)Count<TMRNode>(&count);
    for (LONG rank = 0; rank < count; ++rank) {
        if (SUCCEEDED(AtRank(rank, tabNodes + rank))) continue;
        // All or none: the host cannot know how far it went.
        for (LONG i = 0; i < rank; ++i) {
            CoTaskMemFree(tabNodes[i].ElemLabels.tabLabels);
            tabNodes[i].ElemLabels = {0, nullptr};
        }
        return E_FAIL;
    }
    return S_OK;
}

}  // namespace tamur
