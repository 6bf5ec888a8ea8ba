"""Tables as columns of NumPy."""
from __future__ import annotations

from typing import TYPE_CHECKING, Any, Iterator, Optional, Sequence, TypeVar, Union

import numpy as np

from . import _text
from ._layout import Column, Layout
from ._library import TableMemory
from ._ragged import POINT, Array, Ragged
from ._row import Row

if TYPE_CHECKING:
    import pandas

Index = Union[slice, Sequence[int], Array]
_Table = TypeVar("_Table", bound="Table")


class Table:
    """Records of one kind.

    `table["start"]` is a column, `table[0]` a row, `table[5:10]`, `table[mask]` and
    `table[places]` are tables. Among places -1 stands for a record that is not there, as in a
    column of references: its row has NaN, 0, and None for texts. Arrays are read-only and live on
    without the model.
    """

    layout: Layout

    def __init__(self, memory: TableMemory, rows: Optional[Array] = None) -> None:
        self._memory = memory
        self._rows = memory.rows(self.layout.dtype) if rows is None else rows
        self._columns: dict[str, Any] = {}
        self._texts: Optional[Array] = None

    # What it has.

    @property
    def columns(self) -> dict[str, Column]:
        """Each column with its unit and what it is."""
        return dict(self.layout.by_name)

    @property
    def rows(self) -> Array:
        """The rows as the library has them: a structured array, in which texts and references are
        places and lists say where their values are."""
        return self._rows

    def __len__(self) -> int:
        return len(self._rows)

    def __iter__(self) -> Iterator[Row]:
        for place in range(len(self)):
            yield Row(self, place)

    def __getitem__(self, key: Any) -> Any:
        if isinstance(key, str):
            return self._column(key)
        if isinstance(key, (int, np.integer)) and not isinstance(key, bool):
            return self._row(int(key))
        if isinstance(key, slice):
            return self._with(self._rows[key])
        return self._with(self._taken(key))

    def find(self, key: Union[int, str]) -> Row:
        """The first row with that identifier or number, or with that name or title."""
        names = ("name", "title") if isinstance(key, str) else ("identifier", "number", "load_case")
        for name in names:
            if name in self.layout.by_name:
                places = np.flatnonzero(self[name] == key)
                if len(places):
                    return Row(self, int(places[0]))
                break
        raise KeyError(key)

    def to_frame(self) -> pandas.DataFrame:
        """As a data frame: points in three columns, lists as objects."""
        import pandas

        return pandas.DataFrame(dict(_text.plain_columns(self)))

    # How it does it.

    def _with(self: _Table, rows: Array) -> _Table:
        table = type(self)(self._memory, rows)
        table._texts = self._texts
        return table

    def _row(self, place: int) -> Any:
        if not -len(self) <= place < len(self):
            raise IndexError(f"{self.layout.name} have {len(self)} rows, not {place}")
        return Row(self, place % len(self))

    def _taken(self, key: Any) -> Array:
        places = np.asarray(key)
        if places.size == 0 and not isinstance(key, np.ndarray):
            places = places.astype(np.int64)
        if places.ndim != 1 or places.dtype.kind not in "iub":
            raise TypeError(f"{self.layout.name}: a column is named by a text; rows by an integer, "
                            f"a slice, or an array of integers or booleans, not {repr(key)[:60]}")
        if places.dtype.kind == "b":
            if len(places) != len(self):
                raise IndexError(f"{len(places)} booleans for {len(self)} rows")
            chosen: Array = self._rows[places]
            return chosen
        if len(places) and not (-1 <= int(places.min()) and int(places.max()) < len(self)):
            raise IndexError(f"{self.layout.name} have {len(self)} rows")
        if len(self) == 0:
            return np.repeat(self.layout.absent_row(), len(places))
        taken: Array = self._rows[places]
        is_absent = places == -1
        if is_absent.any():
            taken[is_absent] = self.layout.absent_row()
        return taken

    def _all_texts(self) -> Array:
        if self._texts is None:
            self._texts = self._memory.texts()
        return self._texts

    def _column(self, name: str) -> Any:
        if name not in self._columns:
            if name not in self.layout.by_name:
                raise KeyError(f"{self.layout.name} have no column {name!r}: they have "
                               + ", ".join(self.layout.by_name))
            self._columns[name] = self._made_column(self.layout.by_name[name])
        return self._columns[name]

    def _made_column(self, column: Column) -> Any:
        values = self._rows[column.name]
        if column.kind == "text":
            values = self._all_texts()[values]
        if column.kind == "texts":
            return Ragged(values, self._memory.integers(), texts=self._all_texts())
        if column.kind == "ints":
            return Ragged(values, self._memory.integers())
        if column.kind in ("reals", "points"):
            return Ragged(values, self._memory.reals(), POINT if column.kind == "points" else 1)
        values.flags.writeable = False
        return values

    def value(self, name: str, place: int) -> Any:
        """One value, as Python has it."""
        column = self.layout.by_name.get(name)
        if column is None or column.is_list or column.length:
            return self._column(name)[place]
        value = self._rows[name][place]
        return self._all_texts()[value] if column.kind == "text" else value.item()

    def __reduce__(self) -> Any:
        raise TypeError("a table does not travel between processes: its columns and frames do")

    def __repr__(self) -> str:
        return _text.plain_table(self)

    def _repr_html_(self) -> str:
        return _text.html_table(self)


class SectionTable(Table):
    def outline(self, place: int) -> Array:
        """The points of an outline: two coordinates each, three with the code S."""
        is_three = self.value("outline_code", place) == ord("S")
        points: Array = self["outline"][place].reshape(-1, 3 if is_three else 2)
        return points


class CombinationTable(Table):
    """By their numbers: `combinations[101]` is `{1: 1.35, 2: 1.5}`."""

    def _row(self, place: int) -> dict[int, float]:
        row = self.find(place)
        return dict(zip(row["cases"].tolist(), row["factors"].tolist()))

    def __contains__(self, number: object) -> bool:
        return number in self["load_case"]

    def as_dict(self) -> dict[int, dict[int, float]]:
        """All of them by their numbers."""
        return {number: self._row(number) for number in self["load_case"].tolist()}


class FindingTable(Table):
    #: How many there are of each code; of each the first 10000 are in the table.
    counts: dict[str, int]

    def of(self, severity: str) -> FindingTable:
        """Those that are an "error", a "warning" or a "note"."""
        if severity not in ("error", "warning", "note"):
            raise ValueError(f"no severity {severity!r}: error, warning or note")
        found: FindingTable = self[np.asarray(self["severity"] == severity, bool)]
        return found
