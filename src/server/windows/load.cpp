// The loading and unloading of the library.
#include "com/guarded.h"
#include "server/reader_app.h"
#include "server/windows/instance.h"

// The run time's, in none of its headers: frees the memory that it keeps for exceptions thrown when
// there is no other. It is linked into this library, so nobody else frees it.
namespace __gnu_cxx {
void __freeres();
}

namespace tamur {
namespace {

HINSTANCE theInstance = nullptr;

}  // namespace

HINSTANCE Instance()
{
    return theInstance;
}

}  // namespace tamur

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID processEnds)
{
    if (reason == DLL_PROCESS_ATTACH) {
        tamur::theInstance = instance;
        DisableThreadLibraryCalls(instance);
        const auto start = [] { return tamur::theApp.InitInstance() ? S_OK : E_FAIL; };
        return SUCCEEDED(tamur::com::Guarded(start));
    }
    if (reason == DLL_PROCESS_DETACH) {
        tamur::theApp.ExitInstance();
        // A process that ends takes its memory with it, and may have been stopped anywhere.
        if (processEnds == nullptr) __gnu_cxx::__freeres();
    }
    return TRUE;
}
