// What is said when something goes wrong, and the exit code that it makes.
#pragma once

#include <new>
#include <ostream>
#include <stdexcept>
#include <string>

#include "host/told_error.h"
#include "import.h"

namespace tamur::tool {

// One line. Returns `code`.
int Fail(std::ostream& errors, int code, const std::string& why);
// The same for the exception that is being handled.
int TellFailure(std::ostream& errors);

// Does it; what it throws that is told in several languages is told in that one.
template <class Do>
auto SpeakingIn(host::Language language, Do&& does)
{
    try {
        return does();
    } catch (const host::ToldError& error) {
        throw std::runtime_error(error.In(language));
    }
}

// Does it, for commands to whom a file that is not imported is no answer but trouble.
template <class Do>
auto NeedingTheModel(const std::string& file, Do&& does)
{
    try {
        return does();
    } catch (const ImportRefused& refused) {
        throw std::runtime_error(refused.what());
    } catch (const std::bad_alloc&) {
        throw std::runtime_error(file + ": not enough memory");
    }
}

}  // namespace tamur::tool
