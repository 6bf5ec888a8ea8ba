#include "process.h"

#include <windows.h>

#include <shellapi.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <iostream>

#include <tamur/utf8.h>

namespace tamur::tool {
namespace {

// Nothing when the stream is no console.
bool TakeColours(DWORD stream)
{
    const HANDLE console = GetStdHandle(stream);
    DWORD mode = 0;
    if (GetConsoleMode(console, &mode) == 0) return false;
    constexpr DWORD kColours = 0x4;  // ENABLE_VIRTUAL_TERMINAL_PROCESSING, which old headers lack
    return SetConsoleMode(console, mode | kColours) != 0;
}

}  // namespace

std::vector<std::string> Arguments(int, char**)
{
    // main() gets its arguments in the code page, where characters may be lost.
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
    LocalFree(wide);
    return arguments;
}

void PrepareStreams()
{
    SetConsoleOutputCP(CP_UTF8);
    (void)_setmode(_fileno(stdout), _O_BINARY);
    (void)_setmode(_fileno(stderr), _O_BINARY);
    (void)_setmode(_fileno(stdin), _O_BINARY);
}

Console StandardConsole()
{
    return {.in = std::cin,
            .out = std::cout,
            .errors = std::cerr,
            .isOutTerminal = TakeColours(STD_OUTPUT_HANDLE),
            .isErrorsTerminal = TakeColours(STD_ERROR_HANDLE)};
}

}  // namespace tamur::tool
