// The loading and unloading of the library.
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
        return tamur::theApp.InitInstance();
    }
    if (reason == DLL_PROCESS_DETACH) tamur::theApp.ExitInstance();
    return TRUE;
}
