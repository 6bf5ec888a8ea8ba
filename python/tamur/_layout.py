"""Where the columns of a table are in its rows."""
from __future__ import annotations

from dataclasses import dataclass, field
from typing import Any, Iterator

import numpy as np

LIST = np.dtype([("start", "<u8"), ("stored", "<u4"), ("count", "<i4")])
_FORMATS: dict[str, Any] = {
    "int": "<i4", "long": "<i8", "real": "<f8", "text": "<i4", "reference": "<i4",
    "reals": LIST, "points": LIST, "ints": LIST, "texts": LIST,
}
# The values of a row that is not there.
_ABSENT: dict[str, Any] = {"real": np.nan, "text": -1, "reference": -1}


@dataclass(frozen=True)
class Column:
    """A column: `field` is its path in the contract's record, empty where it is in none; `target`
    the table that a reference leads into."""

    name: str
    kind: str
    offset: int
    length: int
    unit: str
    text: str
    field: str
    target: str

    @property
    def is_list(self) -> bool:
        return self.kind in ("reals", "points", "ints", "texts")


@dataclass(frozen=True)
class Layout:
    number: int
    name: str
    table: str
    size: int
    columns: tuple[Column, ...]
    by_name: dict[str, Column] = field(init=False, repr=False, compare=False)
    dtype: np.dtype[Any] = field(init=False, repr=False, compare=False)

    def __post_init__(self) -> None:
        object.__setattr__(self, "by_name", {column.name: column for column in self.columns})
        object.__setattr__(self, "dtype", np.dtype({
            "names": [column.name for column in self.columns],
            "formats": [(_FORMATS[column.kind], (column.length,)) if column.length
                        else _FORMATS[column.kind] for column in self.columns],
            "offsets": [column.offset for column in self.columns],
            "itemsize": self.size}))

    def absent_row(self) -> np.ndarray[Any, Any]:
        """A row of nothing, for a reference that leads nowhere."""
        row = np.zeros(1, self.dtype)
        for column in self.columns:
            if column.kind in _ABSENT:
                row[column.name] = _ABSENT[column.kind]
        return row

    def lines(self) -> Iterator[str]:
        """As the library says it of its own rows."""
        yield f"{self.name} {self.dtype.itemsize}"
        places: Any = self.dtype.fields
        for name in self.by_name:
            kind, offset = places[name][:2]
            yield f"{self.name}.{name} {offset} {kind.itemsize}"
