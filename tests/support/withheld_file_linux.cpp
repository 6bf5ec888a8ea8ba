#include "support/withheld_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace tamur::test {

struct WithheldFile::State {
    uid_t user = geteuid();
    bool isWithheld = false;
};

// Root may read everything, so it becomes a user that may not.
WithheldFile::WithheldFile(const std::filesystem::path& path) : state_(std::make_unique<State>())
{
    constexpr uid_t kNobody = 65534;
    state_->isWithheld =
        chmod(path.c_str(), 0) == 0 && (state_->user != 0 || seteuid(kNobody) == 0);
}

WithheldFile::~WithheldFile()
{
    if (seteuid(state_->user) != 0) std::abort();  // the tests that follow would run as nobody
}

bool WithheldFile::IsWithheld() const
{
    return state_->isWithheld;
}

}  // namespace tamur::test
