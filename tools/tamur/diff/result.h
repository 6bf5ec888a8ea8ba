// Two files and what is different in them.
#pragma once

#include <string>

#include "host/diff/model_diff.h"

namespace tamur::tool {

struct DiffedFile {
    std::string path;
    std::string version;
};

struct DiffResult {
    DiffedFile before;
    DiffedFile after;
    host::ModelDiff model;

    [[nodiscard]] bool IsEmpty() const
    {
        return before.version == after.version && model.IsEmpty();
    }
};

}  // namespace tamur::tool
