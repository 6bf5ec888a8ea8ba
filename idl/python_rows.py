"""The Python side of the rows: tables, their stubs, and the list of all columns."""
from rows import Column, Rows

TABLES = '''"""The tables of a model and their columns. Made from the contract; do not edit."""
from __future__ import annotations

from ._table import CombinationTable, FindingTable, SectionTable, Table
from ._layout import Column, Layout
'''

STUBS = '''"""The tables of a model and their columns. Made from the contract; do not edit."""
from typing import Any, Literal, overload

import numpy as np
from numpy.typing import NDArray

from ._layout import Layout
from ._ragged import Ragged
from ._row import Row
from ._table import CombinationTable, FindingTable, Index, SectionTable, Table
'''

ARRAYS = {
    "int": "NDArray[np.int32]",
    "reference": "NDArray[np.int32]",
    "long": "NDArray[np.int64]",
    "real": "NDArray[np.float64]",
    "text": "NDArray[np.object_]",
    "reals": "Ragged",
    "points": "Ragged",
    "ints": "Ragged",
    "texts": "Ragged",
}
PUBLIC = ("materials", "sections", "releases", "groups", "bars", "surfaces", "openings", "walls",
          "point_supports", "line_supports", "surface_supports", "cases", "point_loads",
          "line_loads", "surface_loads", "self_weight_loads", "thermal_loads", "seismic_cases",
          "combinations", "envelopes", "nodes", "masses", "cables", "construction_lines",
          "inner_lines", "displacements", "cuts")


def sentence(text: str) -> str:
    return f"{text[0].upper()}{text[1:]}."


def shape_of(column: Column) -> str:
    what = {"int": "integer", "long": "integer", "real": "real", "text": "text",
            "reference": f"place in {column.target}, -1 for none", "reals": "reals",
            "ints": "integers", "texts": "texts", "points": "points"}[column.kind]
    return f"{column.length} {what}s" if column.length else what


def documentation(rows: Rows) -> str:
    lines = [sentence(rows.plain_name), ""]
    for column in rows.columns:
        unit = f" [{column.unit}]" if column.unit else ""
        lines.append(f"    {column.name}: {column.text}{unit}")
    return "\n    ".join(lines).replace("    \n", "\n")


def python_class(rows: Rows) -> str:
    columns = "\n".join(
        f"        Column({column.name!r}, {column.kind!r}, {column.offset}, {column.length}, "
        f"{column.unit!r},\n               {column.text!r}, {column.path!r}, {column.target!r}),"
        for column in rows.columns)
    return f'''class {rows.python_class}({rows.names.base}):
    """{documentation(rows)}
    """

    layout = Layout({rows.names.number}, {rows.names.name!r}, {rows.names.table!r}, {rows.size}, (
{columns}
    ))
'''


def python_tables(tables: list[Rows]) -> str:
    properties = "\n".join(f'''    @property
    def {rows.names.name}(self) -> {rows.python_class}:
        """{sentence(rows.plain_name)}"""
        return self._table({rows.python_class})
''' for rows in tables if rows.names.name in PUBLIC)
    names = "\n".join(f"    {rows.python_class}," for rows in tables)
    model = f'''class ModelTables:
    """The tables of a model, each read when it is first asked for."""

    def _table(self, kind):
        raise NotImplementedError

{properties}

# In the order of their numbers.
ALL_TABLES = (
{names}
)
'''
    return "\n\n".join([TABLES, *map(python_class, tables), model])


def stub_class(rows: Rows) -> str:
    by_type: dict[str, list[str]] = {}
    for column in rows.columns:
        by_type.setdefault(ARRAYS[column.kind], []).append(repr(column.name))
    overloads = [f"    @overload\n    def __getitem__(self, key: Literal[{', '.join(names)}]) -> "
                 f"{kind}: ...\n" for kind, names in by_type.items()]
    row = "dict[int, float]" if rows.names.base == "CombinationTable" else "Row"
    overloads.append(f"    @overload\n    def __getitem__(self, key: int) -> {row}: ...\n")
    overloads.append("    @overload\n    def __getitem__(self, key: Index) -> "
                     f"{rows.python_class}: ...\n")
    return (f"class {rows.python_class}({rows.names.base}):\n    layout: Layout\n"
            + "".join(overloads))


def python_stubs(tables: list[Rows]) -> str:
    properties = "".join(f"    @property\n    def {rows.names.name}(self) -> "
                         f"{rows.python_class}: ...\n"
                         for rows in tables if rows.names.name in PUBLIC)
    model = ("class ModelTables:\n    def _table(self, kind: Any) -> Any: ...\n" + properties
             + "\n\nALL_TABLES: tuple[type[Table], ...]\n")
    return "\n\n".join([STUBS, *map(stub_class, tables), model])


def column_docs(tables: list[Rows]) -> str:
    parts = ["# Columns\n\nEvery table of the package `tamur` and of the C interface, with its "
             "columns: the field of the\ncontract's record that a column has, what it is, and its "
             "unit. Made from the contract by\n`idl/generate_rows.py`; a test compares this page "
             "with it.\n"]
    for rows in tables:
        of = f", `{rows.names.record}`" if rows.names.record else ""
        parts.append(f"## {rows.names.name}\n\n{sentence(rows.plain_name)[:-1]}{of}; in C "
                     f"`{rows.c_number}`, `{rows.c_row}`.\n\n"
                     "| Column | Values | What it is | Unit | Field |\n|---|---|---|---|---|\n"
                     + "\n".join(f"| `{column.name}` | {shape_of(column)} | {column.text} | "
                                 f"{column.unit} | "
                                 + (f"`{column.path}`" if column.path else "") + " |"
                                 for column in rows.columns) + "\n")
    return "\n".join(parts)
