// How much memory an import may take.
#pragma once

#include <cstddef>
#include <cstdint>

#include "linked/memory_watch.h"

namespace tamur::test {

// What an import takes whatever the size of the file: 256 KiB to read it through, and 16 KiB for
// each table that gets a record. With the 112 seeds and their changes that is 406 KiB at most.
constexpr std::int64_t MemoryLimit(std::size_t fileSize)
{
    return (std::int64_t{512} << 10) + 32 * static_cast<std::int64_t>(fileSize);
}

}  // namespace tamur::test
