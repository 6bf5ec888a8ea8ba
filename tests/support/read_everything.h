// Everything that a reader serves, read in full.
#pragma once

#include <tamur/ranges.h>

#include <cstdint>

namespace tamur::test {

// Reads every record of every accessor, every string, label and array of it, and frees it. Returns
// a digest of all: equal for equal models.
std::uint64_t ReadEverything(ITAMURStructureReader& reader);

}  // namespace tamur::test
