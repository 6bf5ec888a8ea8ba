// One import in a process of its own: how much memory it takes, what touching memory for the
// first time adds, and what giving it back to the system costs.
#pragma once

#include <filesystem>

namespace tamur::bench {

struct FreshImport {
    double importSeconds = 0;
    double releaseSeconds = 0;
    double peakBytes = 0;  // resident, above what the process had before the import
};

// Runs this program again, with the option that MeasureInThisProcess serves.
[[nodiscard]] FreshImport ImportInFreshProcess(const std::filesystem::path& path);

inline constexpr const char* kFreshProcessOption = "--import-and-measure";

// Prints what ImportInFreshProcess reads.
void MeasureInThisProcess(const std::filesystem::path& path);

}  // namespace tamur::bench
