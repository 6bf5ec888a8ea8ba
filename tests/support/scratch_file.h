// One file, written over and over.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace tamur::test {

// In memory where the system has a place for that. Removed at the end.
class ScratchFile {
 public:
    ScratchFile()
    {
        const std::filesystem::path memory = "/dev/shm";
        const auto folder =
            std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
        path_ = folder / ("tamur-scratch-" + std::to_string(std::random_device()()) + ".txt");
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile() { std::filesystem::remove(path_); }

    void Write(const std::string& content) const
    {
        std::FILE* const file = std::fopen(path_.string().c_str(), "wb");
        if (file == nullptr ||
            std::fwrite(content.data(), 1, content.size(), file) != content.size()) {
            std::perror("scratch file");
            std::exit(2);
        }
        (void)std::fclose(file);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
    std::filesystem::path path_;
};

}  // namespace tamur::test
