// Tables of cells, as spreadsheets and data frames have them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tamur::host {

struct TableColumn {
    std::string name;
    std::string_view unit;  // empty for what has none
};

// "E [N/m2]".
[[nodiscard]] std::string HeadingOf(const TableColumn& column);

// Empty, or a value. Texts are UTF-8 and may hold any character.
struct Cell {
    enum class Type : std::uint8_t { kEmpty, kNumber, kWhole, kText };

    Type type = Type::kEmpty;
    double number = 0;
    std::int64_t whole = 0;
    std::string text = {};

    Cell() = default;
    Cell(double value) : type(Type::kNumber), number(value) {}
    Cell(std::int64_t value) : type(Type::kWhole), whole(value) {}
    Cell(std::string value) : type(Type::kText), text(std::move(value)) {}
    Cell(const char* value) : Cell(std::string(value)) {}
};

class TableWriter {
 public:
    TableWriter() = default;
    TableWriter(const TableWriter&) = delete;
    TableWriter& operator=(const TableWriter&) = delete;
    virtual ~TableWriter() = default;

    // The rows up to the next Begin are of this table. No two have the same name, and a name is one
    // for a file: ASCII letters, digits and points.
    virtual void Begin(std::string_view name, std::span<const TableColumn> columns) = 0;
    virtual void Row(std::span<const Cell> cells) = 0;
    // After the last table.
    virtual void End() = 0;
};

}  // namespace tamur::host
