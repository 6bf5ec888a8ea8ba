#include "each_file.h"

#include <algorithm>
#include <ios>
#include <new>

#include "failure.h"
#include "input.h"

namespace tamur::tool {

int ForEachFile(const std::vector<std::string>& files, const Console& console,
                const std::function<int(const std::string& file)>& doWith)
{
    RequireOneStandardInput(files);
    int worst = exit_code::kFine;
    for (const std::string& file : files) {
        try {
            worst = std::max(worst, doWith(file));
        } catch (const std::ios_base::failure&) {
            throw;  // the output
        } catch (...) {
            worst = std::max(worst, TellFailure(console.errors));
        }
    }
    return worst;
}

}  // namespace tamur::tool
