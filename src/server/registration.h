// How hosts find the component: the registry on Windows; elsewhere there is nothing to write,
// because hosts load the library by name.
#pragma once

#include "platform/platform.h"

namespace tamur {

// Runs the registry script of that resource number.
HRESULT RunRegistryScript(unsigned resource, BOOL doRegister);

HRESULT RegisterTypeLibrary();
HRESULT UnregisterTypeLibrary();

}  // namespace tamur
