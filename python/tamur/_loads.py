"""The loads of one load case, or of all."""
from __future__ import annotations

from typing import TYPE_CHECKING, Any, Iterator, Optional

from ._checks import is_integer
from ._table import Table
from ._tables import LineLoads, PointLoads, SelfWeightLoads, SurfaceLoads, ThermalLoads

if TYPE_CHECKING:
    import pandas

    from ._model import Model


class Loads:
    """The loads of a case by their kinds: `point`, `line`, `surface`, `self_weight`, `thermal`."""

    def __init__(self, model: Model, case: Optional[int]) -> None:
        if not (case is None or is_integer(case)):
            raise TypeError(f"a load case is a number, an integer, not {type(case).__name__}")
        self.case = None if case is None else int(case)
        self.point: PointLoads = self._of(model.point_loads)
        self.line: LineLoads = self._of(model.line_loads)
        self.surface: SurfaceLoads = self._of(model.surface_loads)
        self.self_weight: SelfWeightLoads = self._of(model.self_weight_loads)
        self.thermal: ThermalLoads = self._of(model.thermal_loads)
        if self.case is not None and not len(self):
            _need_case(model, self.case)

    def _of(self, table: Table) -> Any:
        return table if self.case is None else table[table["load_case"] == self.case]

    def __iter__(self) -> Iterator[Table]:
        return iter((self.point, self.line, self.surface, self.self_weight, self.thermal))

    def __len__(self) -> int:
        return sum(map(len, self))

    def to_frame(self) -> pandas.DataFrame:
        """All of them, with the table that they are in; what a kind has not is NaN."""
        import pandas

        frames = {table.layout.name: table.to_frame() for table in self}
        return pandas.concat(frames, names=["table", None]).reset_index("table")

    def __repr__(self) -> str:
        of = "" if self.case is None else f" of case {self.case}"
        tables = [repr(table) for table in self if len(table)]
        return "\n\n".join([f"{len(self)} loads{of}", *tables])


def _need_case(model: Model, number: int) -> None:
    if number in model.combinations:
        raise KeyError(f"{number} is a combination, which has factors and no loads of its own: "
                       f"m.combinations[{number}]")
    if not (model.cases["number"] == number).any():
        raise KeyError(f"there is no load case {number}: m.cases has them")
