#include <string>
#include <vector>

#include "host/export/tables/xlsx.h"
#include "host/export/writers.h"
#include "host/export/xlsx/workbook.h"

namespace tamur::host {
namespace {

constexpr std::size_t kLongestSheetName = 31;

constexpr LossText kContinued = {
    LossType::kPartly,
    {"a sheet holds 1,048,576 rows: the further ones are in sheets named like \"Nodes (2)\"",
     "une feuille contient 1 048 576 lignes : les suivantes sont dans des feuilles nommées comme "
     "« Nodes (2) »"}};

}  // namespace

XlsxTables::XlsxTables(const std::filesystem::path& path, Losses& losses, std::size_t mostRows)
    : book_(path, losses), losses_(losses), mostRows_(mostRows)
{
}

void XlsxTables::Begin(std::string_view name, std::span<const TableColumn> columns)
{
    name_ = name;
    headings_.clear();
    for (const TableColumn& column : columns) headings_.push_back(HeadingOf(column));
    sheetOfTable_ = 1;
    AddSheet();
}

void XlsxTables::AddSheet()
{
    const std::string number = sheetOfTable_ == 1 ? "" : " (" + std::to_string(sheetOfTable_) + ")";
    sheet_ = book_.AddSheet(name_.substr(0, kLongestSheetName - number.size()) + number, headings_);
}

void XlsxTables::Row(std::span<const Cell> cells)
{
    if (book_.RowCount(sheet_) == mostRows_) {
        ++sheetOfTable_;
        AddSheet();
        losses_.Add(Kind::kNone, kContinued);
    }
    book_.AddRow(sheet_, cells);
}

void WriteXlsx(const Source& source, const std::filesystem::path& path, Output& output,
               ExportReport& report)
{
    XlsxTables tables(output.AddFile(path), report.losses, Workbook::kMostRows);
    WriteModelTables(source, report.steps, tables);
}

}  // namespace tamur::host
