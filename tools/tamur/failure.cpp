#include "failure.h"

#include <ios>

#include "exit_code.h"
#include "host/findings/plain_text.h"

namespace tamur::tool {

int Fail(std::ostream& errors, int code, const std::string& why)
{
    errors << "tamur: " << host::PlainText(why, why.size()) << '\n';
    return code;
}

int TellFailure(std::ostream& errors)
{
    try {
        throw;
    } catch (const std::ios_base::failure&) {
        return Fail(errors, exit_code::kTrouble, "the output cannot be written");
    } catch (const ImportRefused& error) {
        return Fail(errors, exit_code::kRefused, error.what());
    } catch (const std::bad_alloc&) {
        return Fail(errors, exit_code::kRefused, "not enough memory");
    } catch (const std::exception& error) {
        return Fail(errors, exit_code::kTrouble, error.what());
    }
}

}  // namespace tamur::tool
