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

    using Sheet = std::size_t;

    // A heading row stays in sight; none is made of no headings. The name is unique, and no longer
    // than 31 characters. Throws OutputError.
    Sheet AddSheet(const std::string& name, std::span<const std::string> headings);
    // Texts are texts, whatever they look like, and so are numbers that are not finite. Characters
    // that no sheet can hold become U+FFFD, and what is too long is cut; both are losses.
    void AddRow(Sheet sheet, std::span<const Cell> cells);
    // Headings too.
    [[nodiscard]] std::size_t RowCount(Sheet sheet) const { return sheets_[sheet].rows; }

    // Throws OutputError.
    void Close();

 private:
    struct Written {
        lxw_worksheet* sheet;
        std::size_t rows = 0, columns = 0;  // columns of the heading
    };
    void AddText(const Written& written, std::size_t column, const std::string& text);
    void AddNumber(const Written& written, std::size_t column, double number);
    void AddFilters();
    [[nodiscard]] std::vector<std::size_t> WrittenSizes() const;

    std::filesystem::path path_;
    Losses& losses_;
    std::string folder_;  // where the library keeps its rows; it does not copy the text
    lxw_workbook* book_ = nullptr;
    std::vector<Written> sheets_;
    lxw_format* heading_ = nullptr;
};

}  // namespace tamur::host
