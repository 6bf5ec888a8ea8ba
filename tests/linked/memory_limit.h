// How much memory an import may take.
#pragma once

#include <cstddef>
#include <cstdint>

#include "linked/memory_watch.h"

namespace tamur::test {

constexpr std::int64_t MemoryLimit(std::size_t fileSize)
{
    return (std::int64_t{64} << 20) + 100 * static_cast<std::int64_t>(fileSize);
}

}  // namespace tamur::test
