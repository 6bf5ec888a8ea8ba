#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/platform.h"

namespace tamur::platform {
namespace {

class File final : public BlockSource {
 public:
    explicit File(int descriptor) : descriptor_(descriptor) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() override { close(descriptor_); }

    std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override
    {
        for (;;) {
            const ssize_t got = pread(descriptor_, buffer, size, static_cast<off_t>(offset));
            if (got >= 0) return static_cast<std::size_t>(got);
            if (errno != EINTR) return 0;
        }
    }

 private:
    int descriptor_;
};

}  // namespace

std::unique_ptr<BlockSource> OpenFile(const std::string& path)
{
    // O_NONBLOCK: opening a FIFO must not wait for its writer. It means nothing to a file.
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return nullptr;
    struct stat status;
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(descriptor);
        return nullptr;
    }
    try {
        return std::make_unique<File>(descriptor);
    } catch (...) {
        close(descriptor);
        throw;
    }
}

}  // namespace tamur::platform
