#include "support/loaded_library.h"

#include <dlfcn.h>

namespace tamur::test {

bool IsLoaded(const std::filesystem::path& library)
{
    void* const loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (loaded == nullptr) return false;
    dlclose(loaded);
    return true;
}

std::filesystem::path LibraryOf(const void* function)
{
    Dl_info info = {};
    dladdr(function, &info);
    return info.dli_fname;
}

}  // namespace tamur::test
