// What the library exports.
#include "com/guarded.h"
#include "com/module.h"
#include "platform/platform.h"
#include "server/registration.h"

using tamur::com::Guarded;
using tamur::com::ObjectMapEntry;
using tamur::com::TheModule;

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv)
{
    return Guarded([&] { return TheModule().GetClassObject(rclsid, riid, ppv); });
}

STDAPI DllCanUnloadNow()
{
    return TheModule().LockCount() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer()
{
    const HRESULT result =
        TheModule().ForEachEntry([](ObjectMapEntry& entry) { return entry.updateRegistry(TRUE); });
    return SUCCEEDED(result) ? tamur::RegisterTypeLibrary() : result;
}

STDAPI DllUnregisterServer()
{
    const HRESULT result =
        TheModule().ForEachEntry([](ObjectMapEntry& entry) { return entry.updateRegistry(FALSE); });
    return SUCCEEDED(result) ? tamur::UnregisterTypeLibrary() : result;
}
