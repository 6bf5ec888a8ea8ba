// Tables as the sheets of a workbook.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/export/tables/model_tables.h"
#include "host/export/xlsx/workbook.h"

namespace tamur::host {

// What does not fit into one sheet goes on in further ones.
class XlsxTables : public TableWriter {
 public:
    XlsxTables(const std::filesystem::path& path, Losses& losses, std::size_t mostRows);

    void Begin(std::string_view name, std::span<const TableColumn> columns) override;
    void Row(std::span<const Cell> cells) override;
    void End() override { book_.Close(); }

 private:
    void AddSheet();

    Workbook book_;
    Losses& losses_;
    std::size_t mostRows_;
    std::string name_;
    std::vector<std::string> headings_;
    std::size_t sheetOfTable_ = 1;
    Workbook::Sheet sheet_ = 0;
};

}  // namespace tamur::host
