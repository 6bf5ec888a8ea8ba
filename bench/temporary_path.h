// A place for a file that goes with the object.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

namespace tamur::bench {

class TemporaryPath {
 public:
    TemporaryPath()
    {
        static int count = 0;
        const std::string number = std::to_string(getpid()) + "-" + std::to_string(++count);
        path_ = std::filesystem::temp_directory_path() / ("tamur-bench-" + number + ".txt");
    }
    TemporaryPath(const TemporaryPath&) = delete;
    TemporaryPath& operator=(const TemporaryPath&) = delete;
    ~TemporaryPath()
    {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Get() const { return path_; }

 private:
    std::filesystem::path path_;
};

}  // namespace tamur::bench
