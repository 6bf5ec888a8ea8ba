#include "host/export/xlsx/workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <new>
#include <system_error>

#include "host/export/output.h"
#include "host/export/xlsx/sheet_text.h"
#include "host/export/xlsx/zip_sizes.h"

namespace tamur::host {
namespace {

constexpr LossText kReplaced = {
    LossType::kPartly,
    {"control characters, which a sheet cannot hold, are written as \uFFFD",
     "les caractères de commande, qu'une feuille ne peut pas contenir, sont écrits \uFFFD"}};
constexpr LossText kCut = {
    LossType::kPartly,
    {"texts longer than 32,767 characters, the most that a cell holds, are cut",
     "les textes de plus de 32 767 caractères, le maximum d'une cellule, sont coupés"}};

void CheckLibrary(lxw_error error)
{
    if (error == LXW_ERROR_MEMORY_MALLOC_FAILED) throw std::bad_alloc();
    if (error != LXW_NO_ERROR) FailToWrite(lxw_strerror(error));
}

// The largest that spreadsheets know. What is beyond it is a text, and so is what is no number.
constexpr double kLargestNumber = 9.99999999999999e307;

std::string TextOf(double number)
{
    if (std::isnan(number)) return "nan";
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return std::string(digits.data(), end);
}

lxw_col_t ColumnAt(std::size_t place)
{
    return static_cast<lxw_col_t>(place);
}

}  // namespace

Workbook::Workbook(const std::filesystem::path& path, Losses& losses)
    : path_(path), losses_(losses), folder_(Utf8Of(path.parent_path()))
{
    // Its rows are kept where the output is: one disk that may be full, not two.
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = folder_.empty() ? nullptr : folder_.data();
    book_ = workbook_new_opt(Utf8Of(path).c_str(), &options);
    if (book_ == nullptr) throw std::bad_alloc();
    heading_ = workbook_add_format(book_);
    if (heading_ == nullptr) {
        lxw_workbook_free(book_);
        throw std::bad_alloc();
    }
    format_set_bold(heading_);
}

Workbook::~Workbook()
{
    if (book_ == nullptr) return;
    // What the library closes only when it writes the workbook.
    for (const Written& written : sheets_) (void)std::fclose(written.sheet->optimize_tmpfile);
    lxw_workbook_free(book_);
}

Workbook::Sheet Workbook::AddSheet(const std::string& name, std::span<const std::string> headings)
{
    lxw_worksheet* const sheet = workbook_add_worksheet(book_, name.c_str());
    if (sheet == nullptr) FailToWrite();  // it has no file for its rows
    for (std::size_t i = 0; i < headings.size(); ++i) {
        const double width = std::min(40.0, static_cast<double>(headings[i].size()) + 3);
        CheckLibrary(worksheet_set_column(sheet, ColumnAt(i), ColumnAt(i), width, nullptr));
        CheckLibrary(worksheet_write_string(sheet, 0, ColumnAt(i), headings[i].c_str(), heading_));
    }
    if (!headings.empty()) worksheet_freeze_panes(sheet, 1, 0);
    sheets_.push_back({sheet, headings.empty() ? 0u : 1u, headings.size()});
    return sheets_.size() - 1;
}

void Workbook::AddText(const Written& written, std::size_t column, const std::string& text)
{
    const SheetText fit = SheetTextOf(text, kLongestText);
    if (fit.isReplaced) losses_.Add(Kind::kNone, kReplaced);
    if (fit.isCut) losses_.Add(Kind::kNone, kCut);
    CheckLibrary(worksheet_write_string(written.sheet, static_cast<lxw_row_t>(written.rows),
                                        ColumnAt(column), fit.text.c_str(), nullptr));
}

void Workbook::AddNumber(const Written& written, std::size_t column, double number)
{
    if (!(std::abs(number) <= kLargestNumber)) return AddText(written, column, TextOf(number));
    CheckLibrary(worksheet_write_number(written.sheet, static_cast<lxw_row_t>(written.rows),
                                        ColumnAt(column), number, nullptr));
}

void Workbook::AddRow(Sheet sheet, std::span<const Cell> cells)
{
    Written& written = sheets_[sheet];
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const Cell& cell = cells[i];
        switch (cell.type) {
            case Cell::Type::kEmpty: break;
            case Cell::Type::kText: AddText(written, i, cell.text); break;
            case Cell::Type::kWhole: AddNumber(written, i, static_cast<double>(cell.whole)); break;
            case Cell::Type::kNumber: AddNumber(written, i, cell.number); break;
        }
    }
    ++written.rows;
}

void Workbook::AddFilters()
{
    for (const Written& written : sheets_) {
        if (written.columns == 0 || written.rows < 2) continue;
        CheckLibrary(worksheet_autofilter(written.sheet, 0, 0,
                                          static_cast<lxw_row_t>(written.rows - 1),
                                          ColumnAt(written.columns - 1)));
    }
}

// The library does not look whether its rows could be written: its files tell.
std::vector<std::size_t> Workbook::WrittenSizes() const
{
    std::vector<std::size_t> sizes;
    for (const Written& written : sheets_) {
        lxw_worksheet_write_single_row(written.sheet);
        std::FILE* const rows = written.sheet->optimize_tmpfile;
        if (std::fflush(rows) != 0 || std::ferror(rows) != 0) FailToWrite();
        const long size = std::ftell(rows);
        sizes.push_back(size < 0 ? 0 : static_cast<std::size_t>(size));
    }
    return sizes;
}

void Workbook::Close()
{
    AddFilters();
    const std::vector<std::size_t> sizes = WrittenSizes();
    const lxw_error error = workbook_close(std::exchange(book_, nullptr));
    if (error == LXW_ERROR_CREATING_TMPFILE || error == LXW_ERROR_ZIP_FILE_OPERATION) {
        FailToWrite();
    }
    CheckLibrary(error);
    // Nor whether the parts that it packs are whole.
    const auto packed = ZipSizes(path_);
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const auto sheet = packed.find("xl/worksheets/sheet" + std::to_string(i + 1) + ".xml");
        if (sheet == packed.end() || sheet->second < sizes[i]) FailToWrite("a sheet is not whole");
    }
    const auto isEmpty = [](const auto& part) { return part.second == 0; };
    if (std::any_of(packed.begin(), packed.end(), isEmpty)) FailToWrite("a part is empty");
}

}  // namespace tamur::host
