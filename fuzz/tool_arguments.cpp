// Any bytes as the tool's arguments, one per line. The files that they may name are those that are
// there: the tool only reads.
#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "tools/tamur/command_line.h"

namespace {

// Takes everything and keeps nothing.
class Nowhere final : public std::streambuf {
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

// As a program gets them: a NUL ends one too, because it cannot be part of it.
std::vector<std::string> Lines(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::string> lines;
    bool isInside = false;
    for (std::size_t i = 0; i < size; ++i) {
        if (!isInside) lines.emplace_back();
        isInside = data[i] != '\n' && data[i] != '\0';
        if (isInside) lines.back() += static_cast<char>(data[i]);
    }
    return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Nowhere nowhere;
    std::ostream out(&nowhere);
    std::ostream errors(&nowhere);
    std::istringstream in;
    const int code = tamur::tool::RunCommandLine(Lines(data, size), {in, out, errors});
    if (code < 0 || code > 2) std::abort();
    return 0;
}
