// The component, driven as a host drives it.
#pragma once

#include <tamur/component.h>

#include <filesystem>

namespace tamur::bench {

Component& TheComponent();

// A new reader that has imported the file. Throws ComponentError.
[[nodiscard]] ComPtr<ITAMURStructureReader> Imported(const std::filesystem::path& path);

// Seconds of one import, without making and releasing the reader.
[[nodiscard]] double TimeImport(const std::filesystem::path& path);

}  // namespace tamur::bench
