#include "process.h"

namespace tamur::tool {

std::vector<std::string> Arguments(int argc, char** argv)
{
    return std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc);
}

std::filesystem::path ExecutableFolder()
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

void PrepareStreams() {}

}  // namespace tamur::tool
