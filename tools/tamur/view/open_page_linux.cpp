#include "open_page.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace tamur::tool {

void OpenPage(const std::filesystem::path& page)
{
    // Absolute: a name that begins with a dash is no option then.
    std::string program = "xdg-open", path = std::filesystem::absolute(page).string();
    char* const arguments[] = {program.data(), path.data(), nullptr};
    pid_t child = 0;
    int status = -1;
    if (posix_spawnp(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(child, &status, 0) != child || status != 0) {
        throw std::runtime_error("the page was written, but xdg-open does not open it");
    }
}

}  // namespace tamur::tool
