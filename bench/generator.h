// Large, realistic model files, the same in every run.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "text_writer.h"

namespace tamur::bench {

enum class ElementsPlace { kLast, kFirst };

// A building-like mix: 45 % nodes, 25 % bars, 12 % surfaces of four points; the rest supports,
// loads, openings, walls and others. About 100 bytes an element.
struct ModelOptions {
    std::uint64_t elements = 1000000;
    LineEnd lineEnd = LineEnd::kLf;
    NumberStyle numbers = NumberStyle::kShort;
    ElementsPlace place = ElementsPlace::kLast;
    int cases = 100;
    int combinations = 500;
};

struct ModelFileInfo {
    std::filesystem::path path;
    std::uint64_t bytes = 0;
    std::uint64_t lines = 0;
};

[[nodiscard]] ModelFileInfo WriteModel(const ModelOptions& options,
                                       const std::filesystem::path& path);

// A temporary folder with the files of one run: each is written when it is first asked for, and
// all go at the end.
class ModelFiles {
 public:
    ModelFiles();
    ModelFiles(const ModelFiles&) = delete;
    ModelFiles& operator=(const ModelFiles&) = delete;
    ~ModelFiles();

    const ModelFileInfo& Get(const ModelOptions& options);

    // Removes a file that is not needed any more.
    void Drop(const ModelOptions& options);

    [[nodiscard]] const std::filesystem::path& Folder() const { return folder_; }

 private:
    std::filesystem::path folder_;
    std::map<std::string, ModelFileInfo> files_;
};

}  // namespace tamur::bench
