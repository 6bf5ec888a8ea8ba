#pragma once

#include <optional>

#include "import/file/model_file.h"
#include "import/scan/stream_scanner.h"
#include "model/model.h"

namespace tamur {

// A bar of no length is dropped.
inline std::optional<Finding> BrokenShapeRule(const Bar& bar)
{
    const bool hasLength = !(bar.line.start == bar.line.end);
    return hasLength ? std::nullopt : std::optional(Finding::kZeroLengthBar);
}

// Columns 11 and following of a bar (kind 2), whose points and labels are read.
void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile& file, Bar& bar);

}  // namespace tamur
