// Large, realistic model files, the same in every run.
#pragma once

#include <cstdint>
#include <filesystem>

#include "temporary_path.h"
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
    int combinations = 500;
};

// Written to a temporary file, which goes with the object.
class ModelFile {
 public:
    explicit ModelFile(const ModelOptions& options = {});

    [[nodiscard]] const std::filesystem::path& Path() const { return path_.Get(); }
    [[nodiscard]] double Bytes() const;
    [[nodiscard]] double Lines() const { return static_cast<double>(lines_); }

 private:
    TemporaryPath path_;
    std::uint64_t lines_ = 0;
};

}  // namespace tamur::bench
