// What objects of the component answer to.
#pragma once

#include "platform/platform.h"

namespace tamur::com {

// Gives `found`, with a reference, as the answer of a QueryInterface.
inline HRESULT Answer(IUnknown* found, void** object)
{
    *object = found;
    if (found == nullptr) return E_NOINTERFACE;
    found->AddRef();
    return S_OK;
}

}  // namespace tamur::com
