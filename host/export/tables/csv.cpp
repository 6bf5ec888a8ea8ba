#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <fstream>
#include <system_error>
#include <utility>

#include "host/export/tables/model_tables.h"
#include "host/export/writers.h"

namespace tamur::host {
namespace {

constexpr LossText kNulReplaced = {
    LossType::kPartly,
    {"characters NUL, which end a text for many programs, are written as \uFFFD",
     "les caractères NUL, qui terminent un texte pour bien des programmes, sont écrits \uFFFD"}};

// RFC 4180: commas, quotes doubled, CR LF. UTF-8.
class CsvTables : public TableWriter {
 public:
    CsvTables(std::filesystem::path folder, Losses& losses)
        : folder_(std::move(folder)), losses_(losses)
    {
    }

    void Begin(std::string_view name, std::span<const TableColumn> columns) override
    {
        Finish();
        file_.open(folder_ / PathOf(std::string(name) + ".csv"), std::ios::binary);
        BeginLine();
        for (const TableColumn& column : columns) AddText(HeadingOf(column));
        EndLine();
    }

    void Row(std::span<const Cell> cells) override
    {
        BeginLine();
        for (const Cell& cell : cells) Add(cell);
        EndLine();
    }

    void End() override { Finish(); }

 private:
    void Separate()
    {
        if (!std::exchange(isFirst_, false)) line_ += ',';
    }
    void Add(const Cell& cell)
    {
        switch (cell.type) {
            case Cell::Type::kEmpty: return Separate();
            case Cell::Type::kText: return AddText(cell.text);
            case Cell::Type::kWhole: return AddNumber(cell.whole);
            case Cell::Type::kNumber: break;
        }
        if (std::isnan(cell.number)) return AddText("nan");  // without a sign
        AddNumber(cell.number);
    }
    template <class Number>
    void AddNumber(Number number)
    {
        Separate();
        std::array<char, 32> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        line_.append(digits.data(), end);
    }

    // A spreadsheet takes a text that begins so for a formula, and may send data away with it.
    static bool LooksLikeFormula(std::string_view text)
    {
        return text.size() > 1 && std::string_view("=+-@\t\r'").find(text[0]) != text.npos;
    }

    void AddText(std::string_view text)
    {
        Separate();
        const bool isFormula = LooksLikeFormula(text);
        const bool isQuoted = isFormula || text.find_first_of(",\"\r\n") != text.npos;
        if (isQuoted) line_ += '"';
        if (isFormula) line_ += '\'';
        for (const char c : text) AddCharacter(c);
        if (isQuoted) line_ += '"';
        if (text.find('\0') != text.npos) losses_.Add(Kind::kNone, kNulReplaced);
    }
    void AddCharacter(char c)
    {
        if (c == '\0') {
            line_ += "\uFFFD";
        } else {
            if (c == '"') line_ += '"';
            line_ += c;
        }
    }

    void BeginLine()
    {
        line_.clear();
        isFirst_ = true;
    }
    void EndLine()
    {
        line_ += "\r\n";
        if (!(file_ << line_)) FailToWrite();
    }
    void Finish()
    {
        if (!file_.is_open()) return;
        file_.close();
        if (file_.fail()) FailToWrite();
    }

    std::filesystem::path folder_;
    Losses& losses_;
    std::ofstream file_;
    std::string line_;
    bool isFirst_ = true;
};

}  // namespace

void WriteCsv(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report)
{
    CsvTables tables(output.AddFolder(path, ".csv"), report.losses);
    WriteModelTables(source, report.steps, tables);
}

}  // namespace tamur::host
