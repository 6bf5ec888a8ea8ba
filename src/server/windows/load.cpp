// The loading and unloading of the library.
#include "com/guarded.h"
#include "server/reader_app.h"
#include "server/windows/instance.h"

namespace tamur {
namespace {

HINSTANCE theInstance = nullptr;

}  // namespace

HINSTANCE Instance()
{
    return theInstance;
}

}  // namespace tamur

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        tamur::theInstance = instance;
        DisableThreadLibraryCalls(instance);
        const auto start = [] { return tamur::theApp.InitInstance() ? S_OK : E_FAIL; };
        return SUCCEEDED(tamur::com::Guarded(start));
    }
    if (reason == DLL_PROCESS_DETACH) tamur::theApp.ExitInstance();
    return TRUE;
}
