// The tool in a process whose host has chosen French for C and for C++: a comma parts a number
// from its decimals, and thousands are set apart. No result may depend on that.
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <locale>
#include <stdexcept>
#include <string>

#include "tools/tamur/command_line.h"
#include "tools/tamur/process.h"

namespace {

class FrenchNumbers final : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return ' '; }
    std::string do_grouping() const override { return "\3"; }
};

bool ChooseFrench()
{
    // The name is the C library's own. Not every C++ library knows it: those get the numbers only.
    for (const char* const name : {"fr_FR.UTF-8", "French_France.1252"}) {
        std::locale base;
        try {
            base = std::locale(name);
        } catch (const std::runtime_error&) {
        }
        std::locale::global(std::locale(base, new FrenchNumbers));
        if (std::setlocale(LC_ALL, name) != nullptr) return true;
    }
    return false;
}

// What the C library makes of it.
bool HasDecimalComma()
{
    char text[8];
    (void)std::snprintf(text, sizeof text, "%.1f", 1.5);
    return std::string(text) == "1,5" && std::strtod("1.5", nullptr) < 1.5;
}

}  // namespace

int main(int argc, char** argv)
{
    using namespace tamur::tool;
    if (!ChooseFrench() || !HasDecimalComma()) {
        std::cerr << "this process cannot be made French\n";
        return 3;
    }
    PrepareStreams();
    return RunCommandLine(Arguments(argc, argv), StandardConsole());
}
