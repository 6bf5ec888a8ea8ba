// Where the records of a model were written.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/kinds.h"

namespace tamur::host {

// The line of the file, from 1, of each record in the order of its table.
class RecordLines {
 public:
    // 0 when no line is known: of what the import made by itself, or of a rank outside the table.
    [[nodiscard]] std::uint32_t At(Kind kind, std::size_t rank) const
    {
        const std::vector<std::uint32_t>& lines = Of(kind);
        return rank < lines.size() ? lines[rank] : 0;
    }

    [[nodiscard]] std::vector<std::uint32_t>& Of(Kind kind)
    {
        return lines_[static_cast<std::size_t>(kind)];
    }
    [[nodiscard]] const std::vector<std::uint32_t>& Of(Kind kind) const
    {
        return lines_[static_cast<std::size_t>(kind)];
    }

 private:
    std::array<std::vector<std::uint32_t>, kKindCount> lines_;
};

}  // namespace tamur::host
