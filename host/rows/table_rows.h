// Whole tables as rows of one size.
#pragma once

#include <cstddef>
#include <vector>

#include "host/file/imported_file.h"
#include "host/findings/findings.h"
#include "host/rows/row_blocks.h"

namespace tamur::host {

class RowTable {
 public:
    // How many there will be.
    template <class RowType>
    void Reserve(std::size_t count)
    {
        rowSize_ = sizeof(RowType);
        rows_.reserve(count * sizeof(RowType));
    }
    // One more row, all zero, what is between its members too; it moves when the next one is added.
    template <class RowType>
    [[nodiscard]] RowType& Add()
    {
        rowSize_ = sizeof(RowType);
        rows_.resize(rows_.size() + sizeof(RowType));
        ++count_;
        return *reinterpret_cast<RowType*>(rows_.data() + rows_.size() - sizeof(RowType));
    }

    [[nodiscard]] const std::byte* Rows() const { return rows_.data(); }
    [[nodiscard]] std::size_t Count() const { return count_; }
    [[nodiscard]] std::size_t RowSize() const { return rowSize_; }
    [[nodiscard]] RowBlocks& Blocks() { return blocks_; }
    [[nodiscard]] const RowBlocks& Blocks() const { return blocks_; }

 private:
    std::vector<std::byte> rows_;
    std::size_t count_ = 0;
    std::size_t rowSize_ = 0;
    RowBlocks blocks_;
};

// Adds the rows of the table of that number in <tamur/rows.h>, of a file that was imported. False
// when there is no such table of a model. Throws std::bad_alloc and ComponentError.
[[nodiscard]] bool AddRows(int number, const ImportedFile& imported, RowTable& table);

// The same of the two tables of findings.
void AddFindings(const Findings& findings, RowTable& table);
void AddFindingCounts(const Findings& findings, RowTable& table);

}  // namespace tamur::host
