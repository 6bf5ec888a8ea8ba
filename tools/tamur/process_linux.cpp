#include "process.h"

#include <unistd.h>

#include <iostream>

namespace tamur::tool {

std::vector<std::string> Arguments(int argc, char** argv)
{
    return std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc);
}

void PrepareStreams() {}

Console StandardConsole()
{
    return {.in = std::cin,
            .out = std::cout,
            .errors = std::cerr,
            .isOutTerminal = isatty(STDOUT_FILENO) == 1,
            .isErrorsTerminal = isatty(STDERR_FILENO) == 1};
}

}  // namespace tamur::tool
