#include "server/registration.h"

namespace tamur {

HRESULT RunRegistryScript(unsigned, BOOL)
{
    return S_OK;
}

HRESULT RegisterTypeLibrary()
{
    return S_OK;
}

HRESULT UnregisterTypeLibrary()
{
    return S_OK;
}

}  // namespace tamur
