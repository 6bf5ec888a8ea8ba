// What the handles of <tamur/tamur.h> are.
#pragma once

#include <tamur/tamur.h>

#include <mutex>
#include <optional>

#include "host/file/imported_file.h"
#include "host/findings/findings.h"
#include "host/rows/table_rows.h"

struct TamurModel {
    tamur::host::ImportedFile imported;
    std::optional<tamur::host::Findings> findings;  // of a check
    std::mutex mutex;  // what is read of the reader is read by one thread at a time
};

namespace tamur::capi {

// A table for hosts with what it leads into.
struct OwnedTable : TamurTable {
    host::RowTable held;
};

}  // namespace tamur::capi
