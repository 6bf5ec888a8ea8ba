#pragma once

#include "TAMURReader.h"

namespace tamur {

// The interfaces that every accessor has: its own and the two that it derives from.
inline bool IsAccessorInterface(REFIID riid, REFIID own)
{
    return IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IGenericAccessor) ||
           IsEqualIID(riid, own);
}

}  // namespace tamur
