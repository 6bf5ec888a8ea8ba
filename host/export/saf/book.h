// The sheets of the Structural Analysis Format, which come into being with their first row.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "host/export/losses.h"
#include "host/export/xlsx/workbook.h"
#include "host/structure/geometry.h"

namespace tamur::host::saf {

struct Layout {
    std::string sheet;
    std::vector<std::string> headings;
};

// The cells of one row, in the order of its headings.
class Row {
 public:
    Row& Text(std::string text);
    // Nothing for what is not finite.
    Row& Number(double number);
    Row& Whole(std::int64_t number);
    Row& Point(const host::Point& point);
    Row& Skip(std::size_t count = 1);

    [[nodiscard]] const std::vector<Cell>& Cells() const { return cells_; }

 private:
    std::vector<Cell> cells_;
};

class Book {
 public:
    Book(const std::filesystem::path& path, Losses& losses) : book_(path, losses) {}

    // A layout must not move. Throws OutputError when the sheet is full.
    void Add(const Layout& layout, const Row& row);
    // What is not turned into a table: labels and their values, side by side.
    void AddTurned(const std::string& sheet,
                   const std::vector<std::pair<std::string, std::string>>& values);
    void Close() { book_.Close(); }

 private:
    Workbook book_;
    std::map<const Layout*, Workbook::Sheet> sheets_;
};

// Numbers within texts: decimal points, and no more digits than make sense.
[[nodiscard]] std::string Plain(double number);

}  // namespace tamur::host::saf
