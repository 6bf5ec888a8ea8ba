// tamur: shows what the component reads from a model file. Also the example of a host.
#include <iostream>

#include "command_line.h"
#include "process.h"

int main(int argc, char** argv)
{
    using namespace tamur::tool;
    PrepareStreams();
    std::ios::sync_with_stdio(false);
    return RunCommandLine(Arguments(argc, argv), StandardConsole());
}
