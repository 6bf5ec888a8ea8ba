"""One row of a table."""
from __future__ import annotations

from collections.abc import Mapping
from typing import TYPE_CHECKING, Any, Iterator

import numpy as np

if TYPE_CHECKING:
    from ._table import Table


class Row(Mapping):  # type: ignore[type-arg]
    """A row by the names of its columns: `row["start"]` or `row.start`.

    Rows of tables of one kind are equal when all their values are, NaN and NaN too.
    """

    __slots__ = ("_table", "_place")

    def __init__(self, table: Table, place: int) -> None:
        self._table = table
        self._place = place

    def __getitem__(self, name: str) -> Any:
        return self._table.value(name, self._place)

    def __getattr__(self, name: str) -> Any:
        if name.startswith("_") or name not in self._table.layout.by_name:
            raise AttributeError(f"{self._table.layout.name} have no column {name!r}")
        return self[name]

    def __iter__(self) -> Iterator[str]:
        return iter(self._table.layout.by_name)

    def __len__(self) -> int:
        return len(self._table.layout.columns)

    # With this rows have no hash: their arrays have none.
    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Row):
            return NotImplemented
        return self._table.layout is other._table.layout and all(
            _is_same(self[name], other[name]) for name in self)

    def __dir__(self) -> list[str]:
        return [*super().__dir__(), *self]

    def __repr__(self) -> str:
        cells = (f"{name}={value!r}" for name, value in self.items())
        return f"<{self._table.layout.name}: {', '.join(cells)}>"


def _is_same(one: Any, other: Any) -> bool:
    if isinstance(one, np.ndarray):
        return np.array_equal(one, other, equal_nan=one.dtype.kind == "f")
    return bool(one == other or (one != one and other != other))
