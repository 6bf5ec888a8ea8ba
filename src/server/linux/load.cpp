// The loading and unloading of the library.
#include "server/reader_app.h"

namespace {

[[gnu::constructor]] void OnLoad()
{
    tamur::theApp.InitInstance();
}

[[gnu::destructor]] void OnUnload()
{
    tamur::theApp.ExitInstance();
}

}  // namespace
