// One import in a process of its own: how much memory it takes, what touching memory for the
// first time adds, and what giving it back to the system costs.
#pragma once

#include <filesystem>
#include <string>

namespace tamur::bench {

struct FreshImport {
    double importSeconds = 0;
    double releaseSeconds = 0;
    double peakBytes = 0;  // resident, above what the process had before the import
};

// Runs this program again, with the options that MeasureInThisProcess serves. The peak is that of
// the import and of an export, when one is named.
[[nodiscard]] FreshImport ImportInFreshProcess(const std::filesystem::path& path,
                                               const std::string& exportTarget = {});

inline constexpr const char* kFreshProcessOption = "--import-and-measure";
inline constexpr const char* kThenExportOption = "--then-export";

// Prints what ImportInFreshProcess reads.
void MeasureInThisProcess(const std::filesystem::path& path, const std::string& exportTarget);

}  // namespace tamur::bench
