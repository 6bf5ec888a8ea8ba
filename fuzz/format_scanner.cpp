// The format scanner's reals against the C library's.
#include "import/scan/format_scanner.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

bool Same(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string line(reinterpret_cast<const char*>(data), size);
    double ours[3] = {-7, -7, -7};
    double theirs[3] = {-7, -7, -7};
    std::string_view word = "?";
    char libraryWord[256] = "?";
    tamur::FormatScanner(line.c_str()) >> ours[0] >> ours[1] >> word >> ours[2];
    (void)std::sscanf(line.c_str(), "%lf%lf%255s%lf", &theirs[0], &theirs[1], libraryWord,
                      &theirs[2]);
    for (int i = 0; i < 3; ++i) {
        if (!Same(ours[i], theirs[i])) std::abort();
    }
    if (word != libraryWord) std::abort();
    const std::string first = line.substr(0, line.find_first_of(" \t\n\v\f\r"));
    if (!Same(tamur::WordToReal(first), std::strtod(first.c_str(), nullptr))) std::abort();
    return 0;
}
