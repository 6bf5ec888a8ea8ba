#include <windows.h>

#include "support/withheld_file.h"

namespace tamur::test {

struct WithheldFile::State {
    HANDLE handle;
};

WithheldFile::WithheldFile(const std::filesystem::path& path)
    : state_(std::make_unique<State>(
          CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)))
{
}

WithheldFile::~WithheldFile()
{
    CloseHandle(state_->handle);
}

bool WithheldFile::IsWithheld() const
{
    return state_->handle != INVALID_HANDLE_VALUE;
}

}  // namespace tamur::test
