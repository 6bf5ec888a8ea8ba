"""Tables as columns of NumPy."""
from __future__ import annotations

from collections import Counter
from typing import TYPE_CHECKING, Any, Iterator, Optional, Sequence, TypeVar, Union

import numpy as np

from . import _text
from ._checks import is_integer
from ._layout import Column, Layout
from ._library import TableMemory
from ._ragged import POINT, Array, Ragged, read_only
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
        self._rows = read_only(memory.rows(self.layout.dtype) if rows is None else rows)
        self._columns: dict[str, Any] = {}

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

    def __array__(self, dtype: Any = None, copy: Optional[bool] = None) -> Array:
        """`rows`, for functions of NumPy."""
        if dtype is None or np.dtype(dtype) == self._rows.dtype:
            return self._rows.copy() if copy else self._rows
        if copy is False:
            raise ValueError(f"{self.layout.name}: rows of another type are a copy")
        return self._rows.astype(dtype)

    def __len__(self) -> int:
        return len(self._rows)

    def __iter__(self) -> Iterator[Row]:
        for place in range(len(self)):
            yield Row(self, place)

    def __getitem__(self, key: Any) -> Any:
        if isinstance(key, str):
            return self._column(key)
        if is_integer(key):
            return self._row(int(key))
        if isinstance(key, slice):
            return self._with(self._rows[key])
        return self._with(self._taken(key))

    def find(self, key: Union[int, str]) -> Row:
        """The first row with that identifier or number, or with that name or title."""
        if not isinstance(key, str) and not is_integer(key):
            raise TypeError(f"{self.layout.name}: a row is found by a number, an integer, or by a "
                            f"text, not by {type(key).__name__}")
        names = ("name", "title") if isinstance(key, str) else ("identifier", "number", "load_case")
        for name in names:
            if name in self.layout.by_name:
                places = np.flatnonzero(self[name] == key)
                if len(places):
                    return Row(self, int(places[0]))
                break
        raise KeyError(f"{self.layout.name}: there is no row with the {name} {key!r}")

    def to_frame(self) -> pandas.DataFrame:
        """As a data frame: points in three columns, lists as objects."""
        import pandas

        return pandas.DataFrame(dict(_text.plain_columns(self)))

    # How it does it.

    def _with(self: _Table, rows: Array) -> _Table:
        return type(self)(self._memory, rows)

    def _row(self, place: int) -> Any:
        if not -len(self) <= place < len(self):
            raise IndexError(f"{self.layout.name} have {len(self)} rows: there is no {place}")
        return Row(self, place % len(self))

    def _taken(self, key: Any) -> Array:
        if isinstance(key, tuple):
            raise TypeError(f"{self.layout.name}: a table has one dimension, and a list of places "
                            f"takes rows: [[0, 1]], not [0, 1]")
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
        outside = places[(places < -1) | (places >= len(self))]
        if len(outside):
            raise IndexError(f"{self.layout.name} have {len(self)} rows: there is no {outside[0]}")
        if len(self) == 0:
            return np.repeat(self.layout.absent_row(), len(places))
        taken: Array = self._rows[places]
        is_absent = places == -1
        if is_absent.any():
            taken[is_absent] = self.layout.absent_row()
        return taken

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
            values = self._memory.texts()[values]
        if column.kind == "texts":
            return Ragged(values, self._memory.integers(), texts=self._memory.texts())
        if column.kind == "ints":
            return Ragged(values, self._memory.integers())
        if column.kind in ("reals", "points"):
            return Ragged(values, self._memory.reals(), POINT if column.kind == "points" else 1)
        return read_only(values)

    def value(self, name: str, place: int) -> Any:
        """One value, as Python has it."""
        column = self.layout.by_name.get(name)
        if column is None or column.is_list or column.length:
            return self._column(name)[place]
        value = self._rows[name][place]
        return self._memory.texts()[value] if column.kind == "text" else value.item()

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
        if place not in self:
            raise KeyError(f"there is no combination {place}: "
                           f"m.combinations['load_case'] has their numbers")
        row = self.find(place)
        return dict(zip(row["cases"].tolist(), row["factors"].tolist()))

    def __contains__(self, number: object) -> bool:
        if not is_integer(number):
            raise TypeError(f"a combination has a number, an integer, not {type(number).__name__}")
        return bool((self["load_case"] == number).any())

    def as_dict(self) -> dict[int, dict[int, float]]:
        """All of them by their numbers."""
        return {number: self._row(number) for number in self["load_case"].tolist()}


class FindingTable(Table):
    _counts: Optional[dict[str, int]] = None

    @property
    def counts(self) -> dict[str, int]:
        """How many there are of each code; of each the first 10000 are in the table. Of rows that
        were taken from it: how many of each code were taken."""
        if self._counts is None:
            self._counts = dict(Counter(code for code in self["code"].tolist() if code))
        return self._counts

    def of(self, severity: str) -> FindingTable:
        """Those that are an "error", a "warning" or a "note"."""
        if severity not in ("error", "warning", "note"):
            raise ValueError(f"no severity {severity!r}: error, warning or note")
        found: FindingTable = self[np.asarray(self["severity"] == severity, bool)]
        codes = set(found["code"])
        found._counts = {code: n for code, n in self.counts.items() if code in codes}
        return found
