// Where the records of a model were written, and which of them are not what was written.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
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

    // The line was read other than it is written. Whatever is odd about its record is a
    // consequence.
    void MarkMisread(std::uint32_t line) { misread_.push_back(line); }
    // After the last mark.
    void SortMisread() { std::sort(misread_.begin(), misread_.end()); }
    [[nodiscard]] bool IsMisread(Kind kind, std::size_t rank) const
    {
        return std::binary_search(misread_.begin(), misread_.end(), At(kind, rank));
    }

    // The load case was not imported, or not as it is written, and that was said: whatever lacks it
    // is a consequence. Which one it was is not always readable: then it may be any.
    void MarkLostCase(std::int32_t number) { lostCases_.insert(number); }
    void MarkAnyCaseLost() { mayAnyCaseBeLost_ = true; }
    [[nodiscard]] bool IsLostCase(std::int32_t number) const
    {
        return mayAnyCaseBeLost_ || lostCases_.contains(number);
    }
    [[nodiscard]] bool IsAnyCaseLost() const { return mayAnyCaseBeLost_ || !lostCases_.empty(); }

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
    std::vector<std::uint32_t> misread_;
    std::set<std::int32_t> lostCases_;
    bool mayAnyCaseBeLost_ = false;
};

}  // namespace tamur::host
