"""Makes what hands tables over as rows, from the contract and the names of the columns.

usage: generate_rows.py IDL FOLDER
       tamur/rows.h, host/row_fills.h, host/row_layout.h, host/row_names.h,
       python/_tables.py and .pyi, python/columns.md
"""
import os
import sys

from contract import read_contract
from python_rows import column_docs, python_stubs, python_tables
from rows import KINDS, Column, Rows, all_rows

ROWS = """/* The rows of every table. Made from the contract; do not edit. Part of <tamur/tamur.h>,
 * which says what texts, lists and references are.
 */
#ifndef TAMUR_ROWS_H
#define TAMUR_ROWS_H

#include <stdint.h>

/* Values in a block of the table, in turn from `start` on: the first `stored` of `count` values, of
 * which the others are 0, texts empty. A point is one value, and three doubles of the block.
 */
typedef struct TamurList {
    uint64_t start;
    uint32_t stored;
    int32_t count;
} TamurList;
"""

FILLS = """// Records as rows. Made from the contract; do not edit. Part of
// host/rows/table_rows.cpp.
//
// What no field of the record says is left as it is.
#pragma once

#include <tamur/ranges.h>
#include <tamur/rows.h>

#include <cstddef>
#include <cstdint>

#include "host/rows/row_blocks.h"

namespace tamur::host {

// The row of a record.
template <class PublicRecord>
struct RowTypeOf;
"""

NAMES = """// What the tables are called as rows. Made from the contract; do not edit.
#pragma once

#include <TAMURReader.h>

namespace tamur::host {

// "bars", by the record.
template <class PublicRecord>
inline constexpr const char* kRowName = nullptr;

"""
LAYOUT = """// Where the columns of the rows are. Made from the contract; do not edit. Part of
// host/rows/layout.cpp.
#pragma once

#include <tamur/rows.h>

#include <cstddef>
#include <cstdint>

namespace tamur::host {

struct ColumnPlace {
    const char* name;  // "bars.start"; "bars" for the whole row
    std::size_t offset;
    std::size_t size;
};

constexpr ColumnPlace kColumnPlaces[] = {
"""


def c_comment(column: Column) -> str:
    unit = f", {column.unit}" if column.unit else ""
    origin = f" ({column.path})" if column.path else ""
    return f"/* {column.text}{unit}{origin} */"


def c_row(rows: Rows) -> str:
    lines = [f"/* {rows.plain_name[0].upper()}{rows.plain_name[1:]}. */",
             f"typedef struct {rows.c_row} {{"]
    for column in rows.columns:
        length = f"[{column.length}]" if column.length else ""
        lines.append(f"    {KINDS[column.kind][0]} {column.name}{length}; {c_comment(column)}")
    lines.append(f"}} {rows.c_row};\n")
    return "\n".join(lines)


def c_rows(tables: list[Rows]) -> str:
    numbers = ["/* The tables by their numbers, which never change. */", "enum {"]
    numbers += [f"    {rows.c_number} = {rows.names.number}," for rows in tables]
    numbers += ["};\n"]
    return "\n".join([ROWS, *map(c_row, tables), "\n".join(numbers), "#endif\n"])


def fill(column: Column) -> list[str]:
    row = f"row.{column.name}"
    record = f"record.{column.path}"
    if column.kind == "text":
        return [f"{row} = blocks.AddText({record});"]
    if column.kind == "points":
        return [f"{row} = blocks.AddPoints({record});"]
    if column.kind == "texts":
        return [f"{row} = blocks.AddLabels({record});"]
    if column.kind in ("reals", "ints"):
        values = record + (".tabCoef" if column.count.endswith(".nbPoints)")
                           and column.path == "portCoef" else "")
        return [f"{row} = blocks.AddList({values}, {column.count});"]
    if column.length == 3 and column.kind == "real":
        return [f"{row}[{i}] = {record}.{axis};" for i, axis in enumerate("xyz")]
    if column.length:
        return [f"for (int i = 0; i < {column.length}; ++i) {row}[i] = {record}[i];"]
    return [f"{row} = {record};"]


def c_fill(rows: Rows) -> str:
    statements = [statement for column in rows.columns
                  if column.path and column.kind != "reference" for statement in fill(column)]
    record = rows.names.record
    return f"""template <>
struct RowTypeOf<{record}> {{
    using Row = {rows.c_row};
    static constexpr int kNumber = {rows.c_number};
}};
inline void FillRow(const {record}& record, [[maybe_unused]] RowBlocks& blocks, {rows.c_row}& row)
{{
    """ + "\n    ".join(statements) + "\n}\n"


def c_fills(tables: list[Rows]) -> str:
    return "\n".join([FILLS, *(c_fill(rows) for rows in tables if rows.names.record),
                      "}  // namespace tamur::host\n"])


def c_layout(tables: list[Rows]) -> str:
    lines = []
    for rows in tables:
        name = rows.names.name
        lines.append(f'    {{"{name}", 0, sizeof({rows.c_row})}},')
        lines += [f'    {{"{name}.{column.name}", offsetof({rows.c_row}, {column.name}), '
                  f"sizeof({rows.c_row}::{column.name})}}," for column in rows.columns]
    return LAYOUT + "\n".join(lines) + "\n};\n\n}  // namespace tamur::host\n"


def c_names(tables: list[Rows]) -> str:
    names = [f'template <>\ninline constexpr const char* kRowName<{rows.names.record}> = '
             f'"{rows.names.name}";' for rows in tables if rows.names.record]
    return NAMES + "\n".join(names) + "\n\n}  // namespace tamur::host\n"


def main() -> None:
    tables = all_rows(read_contract(sys.argv[1]))
    for name, text in (("tamur/rows.h", c_rows(tables)),
                       ("host/row_fills.h", c_fills(tables)),
                       ("host/row_layout.h", c_layout(tables)),
                       ("host/row_names.h", c_names(tables)),
                       ("python/_tables.py", python_tables(tables)),
                       ("python/_tables.pyi", python_stubs(tables)),
                       ("python/columns.md", column_docs(tables))):
        path = os.path.join(sys.argv[2], name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)


if __name__ == "__main__":
    main()
