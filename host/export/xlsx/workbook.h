// A workbook that is written row by row, with memory for one row of each sheet.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "host/export/losses.h"
#include "host/export/tables/table_writer.h"

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

namespace tamur::host {

class Workbook {
 public:
    // What spreadsheets hold.
    static constexpr std::size_t kMostRows = 1'048'576;
    static constexpr std::size_t kLongestText = 32'767;  // in UTF-16 units

    Workbook(const std::filesystem::path& path, Losses& losses);
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;
    ~Workbook();

    // The rows that follow are in it. A heading row stays in sight; none is made of no headings.
    // The name is unique, and no longer than 31 characters. Throws OutputError.
    void AddSheet(const std::string& name, std::span<const std::string> headings);
    // Texts are texts, whatever they look like, and so are numbers that are not finite. Characters
    // that no sheet can hold become U+FFFD, and what is too long is cut; both are losses.
    void AddRow(std::span<const Cell> cells);
    [[nodiscard]] std::size_t RowCount() const { return row_; }

    // Throws OutputError.
    void Close();

 private:
    void AddText(std::size_t column, const std::string& text);
    void FinishSheet();
    [[nodiscard]] std::vector<std::size_t> WrittenSizes() const;

    std::filesystem::path path_;
    Losses& losses_;
    std::string folder_;  // where the library keeps its rows; it does not copy the text
    lxw_workbook* book_ = nullptr;
    std::vector<lxw_worksheet*> sheets_;
    lxw_format* heading_ = nullptr;
    std::size_t row_ = 0, columnCount_ = 0;
    bool hasHeading_ = false;
};

}  // namespace tamur::host
