"""Columns of which every row has as many values as it needs."""
from __future__ import annotations

from collections.abc import Sequence
from functools import cached_property
from typing import Any, Iterator, Optional

import numpy as np

from ._checks import is_integer

POINT = 3
Array = np.ndarray[Any, Any]


def read_only(values: Array) -> Array:
    values.flags.writeable = False
    return values


class Ragged(Sequence):  # type: ignore[type-arg]
    """The values of all rows end to end: row i has `values[offsets[i]:offsets[i + 1]]`.

    `column[i]` is the array of one row. Points are arrays of three reals, texts are `str`.
    """

    def __init__(self, lists: Array, block: Array, width: int = 1,
                 texts: Optional[Array] = None) -> None:
        self._starts = lists["start"].astype(np.int64)
        self._stored = lists["stored"].astype(np.int64)
        self._block = block
        self._width = width
        self._texts = texts
        #: How many values each row has.
        self.lengths: np.ndarray[Any, np.dtype[np.int64]] = lists["count"].astype(np.int64)
        read_only(self.lengths)

    def __len__(self) -> int:
        return len(self.lengths)

    def __getitem__(self, row: Any) -> Any:
        if not is_integer(row):
            raise TypeError(f"a row is an integer, not {type(row).__name__}")
        row = range(len(self))[row]
        start, stored = int(self._starts[row]), int(self._stored[row])
        held = self._block[start:start + stored * self._width]
        values = self._empty(int(self.lengths[row]))
        values.reshape(-1)[:len(held)] = held if self._texts is None else self._texts[held]
        return read_only(values)

    def __iter__(self) -> Iterator[Array]:
        for row in range(len(self)):
            yield self[row]

    def _empty(self, count: int) -> Array:
        """What the file announces and does not have: zeros, and empty texts."""
        if self._texts is not None:
            return np.full(count, "", object)
        shape = (count, self._width) if self._width > 1 else (count,)
        return np.zeros(shape, self._block.dtype)

    @cached_property
    def offsets(self) -> Array:
        """Where the values of each row begin, and where one more would: one more than there are
        rows."""
        return read_only(np.concatenate(([0], np.cumsum(self.lengths))))

    @cached_property
    def values(self) -> Array:
        """The values of all rows."""
        sizes = self._stored * self._width
        before = np.cumsum(sizes) - sizes
        total = int(sizes.sum())
        is_whole = self._texts is None and np.array_equal(self._stored, self.lengths)
        if total and is_whole and np.array_equal(self._starts[sizes > 0],
                                                 (self._starts[sizes > 0][0] + before)[sizes > 0]):
            first = int(self._starts[sizes > 0][0])
            held = self._block[first:first + total]
            return read_only(held.reshape(-1, self._width) if self._width > 1 else held)
        values = self._empty(int(self.lengths.sum()))
        within = np.arange(total) - np.repeat(before, sizes)
        held = self._block[np.repeat(self._starts, sizes) + within]
        places = np.repeat(self.offsets[:-1] * self._width, sizes) + within
        values.reshape(-1)[places] = held if self._texts is None else self._texts[held]
        return read_only(values)

    def __repr__(self) -> str:
        return f"<Ragged: {len(self)} rows, {int(self.lengths.sum())} values>"
