"""Tables as text, as HTML, and as plain columns."""
from __future__ import annotations

import html
from typing import TYPE_CHECKING, Any, Iterator

import numpy as np


if TYPE_CHECKING:
    from ._layout import Column
    from ._table import Table

_SHOWN_ROWS = 10
_WIDTH = 100
_WIDEST = 60


def plain_columns(table: Table) -> Iterator[tuple[str, Any]]:
    """One-dimensional columns: of points three, of other values side by side numbered ones."""
    for column in table.layout.columns:
        values = table[column.name]
        if column.is_list:
            objects = np.empty(len(table), object)
            for place, value in enumerate(values):
                objects[place] = value
            yield column.name, objects
        elif column.length:
            ends = "xyz" if column.length == 3 else [str(i + 1) for i in range(column.length)]
            for place, end in enumerate(ends):
                yield f"{column.name}_{end}", values[:, place]
        else:
            yield column.name, values


def _cell(table: Table, column: Column, place: int) -> str:
    value = table.value(column.name, place)
    if value is None:
        return "-"
    if column.kind == "texts" or (isinstance(value, np.ndarray) and value.size <= 3):
        return _short(" ".join(_plain(one) for one in value))
    if isinstance(value, np.ndarray):
        return f"{len(value)} {'points' if column.kind == 'points' else 'values'}"
    return _short(_plain(value))


def _plain(value: Any) -> str:
    text = f"{value:g}" if isinstance(value, float) else str(value)
    return "".join(c if c.isprintable() else "?" for c in text)


def _short(text: str) -> str:
    return text if len(text) <= _WIDEST else text[:_WIDEST - 1] + "…"


def _shown(table: Table) -> list[int]:
    count = len(table)
    if count <= _SHOWN_ROWS:
        return list(range(count))
    half = _SHOWN_ROWS // 2
    return [*range(half), *range(count - half, count)]


def _cells(table: Table) -> tuple[list[int], list[list[str]]]:
    places = _shown(table)
    return places, [[_cell(table, column, place) for place in places]
                    for column in table.layout.columns]


def _title(table: Table) -> str:
    count = len(table)
    return f"{table.layout.name}: {count} row" + ("" if count == 1 else "s")


def plain_table(table: Table) -> str:
    places, columns = _cells(table)
    lines = [""] * (len(places) + 1)
    is_cut = False
    for column, cells in zip(table.layout.columns, columns):
        texts = [column.name, *cells]
        width = max(map(len, texts))
        is_cut = is_cut or len(lines[0]) + width + 2 > _WIDTH
        if not is_cut:
            is_text = column.kind in ("text", "texts")
            lines = [line + "  " + (text.ljust(width) if is_text else text.rjust(width))
                     for line, text in zip(lines, texts)]
    if is_cut:
        lines[0] += "  …"
    if len(places) < len(table):
        lines.insert(1 + len(places) // 2, "  …")
    lines = [line.rstrip() for line in lines]
    return "\n".join([_title(table), *lines]) if len(table) else _title(table)


def html_table(table: Table) -> str:
    places, columns = _cells(table)
    heads = "".join(f'<th title="{html.escape(_describe(column))}">{column.name}</th>'
                    for column in table.layout.columns)
    rows = ["<tr>" + "".join(f"<td>{html.escape(cells[i])}</td>" for cells in columns) + "</tr>"
            for i in range(len(places))]
    if len(places) < len(table):
        rows.insert(len(places) // 2, f'<tr><td colspan="{len(columns)}">…</td></tr>')
    return (f"<table><caption>{_title(table)}</caption><thead><tr>{heads}</tr></thead>"
            f"<tbody>{''.join(rows)}</tbody></table>")


def _describe(column: Column) -> str:
    return column.text + (f" [{column.unit}]" if column.unit else "")
