// What a command reads from and writes to.
#pragma once

#include <istream>
#include <ostream>

namespace tamur::tool {

struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& errors;
    bool isOutTerminal = false;
    bool isErrorsTerminal = false;
};

}  // namespace tamur::tool
