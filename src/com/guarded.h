// Where exceptions end.
#pragma once

#include <new>

#include "platform/platform.h"

namespace tamur::com {

// Turns whatever a body throws into its result code: no exception leaves the component.
template <class Body>
HRESULT Guarded(Body body) noexcept
try {
    return platform::PrepareForBadAlloc() ? body() : E_OUTOFMEMORY;
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
} catch (...) {
    return E_UNEXPECTED;
}

}  // namespace tamur::com
