#include "host/export/saf/book.h"

#include <array>
#include <charconv>
#include <cmath>

#include "host/export/output.h"

namespace tamur::host::saf {

Row& Row::Text(std::string text)
{
    cells_.push_back(text.empty() ? Cell() : Cell(std::move(text)));
    return *this;
}

Row& Row::Number(double number)
{
    cells_.push_back(std::isfinite(number) ? Cell(number) : Cell());
    return *this;
}

Row& Row::Whole(std::int64_t number)
{
    cells_.emplace_back(number);
    return *this;
}

Row& Row::Point(const host::Point& point)
{
    return Number(point.x).Number(point.y).Number(point.z);
}

Row& Row::Skip(std::size_t count)
{
    cells_.resize(cells_.size() + count);
    return *this;
}

void Book::Add(const Layout& layout, const Row& row)
{
    auto sheet = sheets_.find(&layout);
    if (sheet == sheets_.end()) {
        sheet = sheets_.emplace(&layout, book_.AddSheet(layout.sheet, layout.headings)).first;
    }
    if (book_.RowCount(sheet->second) == Workbook::kMostRows) {
        throw OutputError(
            "the sheet " + layout.sheet +
                " needs more than the 1,048,576 rows that a workbook has: export a part "
                "of the model, with --group or --case",
            "la feuille " + layout.sheet +
                " demande plus que les 1 048 576 lignes d'un classeur : exporter une "
                "partie du modèle, avec --group ou --case");
    }
    book_.AddRow(sheet->second, row.Cells());
}

void Book::AddTurned(const std::string& sheet,
                     const std::vector<std::pair<std::string, std::string>>& values)
{
    const Workbook::Sheet added = book_.AddSheet(sheet, {});
    for (const auto& [label, value] : values) {
        book_.AddRow(added, std::array<Cell, 2>{Cell(label), Cell(value)});
    }
}

std::string Plain(double number)
{
    constexpr int kDigits = 12;
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::general, kDigits)
                         .ptr;
    return std::string(digits.data(), end);
}

}  // namespace tamur::host::saf
