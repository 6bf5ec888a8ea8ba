// Why a file was refused: one cause, the true one.
#pragma once

#include <string>

#include "host/file/file_scan.h"
#include "host/file/file_tail.h"
#include "import/observer.h"

namespace tamur::host {

// `version` is the line after #Version, if there is one.
[[nodiscard]] Finding FindingOf(Refusal refusal, const FileScan& scan, const FileTail& tail,
                                const std::string& version);

// That the file could not be read to its end, or that Ctrl-Z ends it before its last line.
[[nodiscard]] Finding ReadErrorAt(const FileScan& scan, const FileTail& tail);
[[nodiscard]] Finding TextAfterEnd(const FileScan& scan, const FileTail& tail);

// Whether the version is written as the product writes it.
[[nodiscard]] bool IsUsualVersion(const std::string& version);

}  // namespace tamur::host
