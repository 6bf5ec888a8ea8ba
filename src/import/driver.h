// Reads one model file into the model.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "import/observer.h"
#include "model/model.h"
#include "platform/platform.h"

namespace tamur {

// Files that stay open until the reader goes.
using OpenFiles = std::vector<std::unique_ptr<platform::BlockSource>>;

// Whether files of that version can be imported: from 10.1 on.
[[nodiscard]] bool IsVersionSupported(const std::string& version);

// Reads the file at `path`. False, after a message box, when it cannot be opened or its version
// is below 10.1; false without one when a section that must be there is missing: what was read
// by then stays in the model, and the file stays open in `leftOpen`. An observer gets the refusal
// in place of the box. Throws std::bad_alloc.
bool ImportModelFile(Model& model, const std::string& path, OpenFiles& leftOpen,
                     ImportObserver* observer = nullptr);

}  // namespace tamur
