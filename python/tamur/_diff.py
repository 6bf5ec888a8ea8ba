"""What changed from one model to another."""
from __future__ import annotations

import json
from dataclasses import dataclass
from numbers import Real
from typing import TYPE_CHECKING, Any, Optional, Union

from ._model import Model, read
from ._tables import ALL_TABLES

if TYPE_CHECKING:
    import pandas

    from ._model import Source

_NAMES = {table.layout.table: table.layout.name for table in ALL_TABLES}


@dataclass(frozen=True)
class FieldChange:
    """A field by its name in the contract, and its values."""

    field: str
    before: Any
    after: Any
    is_turned: bool  # an outline that only begins at another corner


@dataclass(frozen=True)
class Change:
    """One record: `change` is "changed", "moved", "added", "removed" or "renumbered"."""

    table: str
    change: str
    key: dict[str, Any]
    new_key: Optional[dict[str, Any]]  # of what was renumbered
    distance: Optional[float]          # of what was moved
    fields: list[FieldChange]


class Diff:
    """Every change; true when there is one."""

    def __init__(self, document: dict[str, Any]) -> None:
        self.same: bool = document["same"]
        self.versions: tuple[str, str] = (document["before"]["version"],
                                          document["after"]["version"])
        self.settings = _fields(document["StructureGlobalData"])
        self.modal = _fields(document["Modes"])
        self.messages_added: list[str] = document["Messages"]["added"]
        self.messages_removed: list[str] = document["Messages"]["removed"]
        self.summary: dict[str, dict[str, int]] = {
            _NAMES[table]: counts for table, counts in document["summary"].items()}
        self.changes = [
            Change(_NAMES[change["table"]], change["change"], change["key"], change.get("newKey"),
                   change.get("distance"), _fields(change.get("fields", [])))
            for change in document["changes"]]

    def __bool__(self) -> bool:
        return not self.same

    def __len__(self) -> int:
        return len(self.changes)

    def to_frame(self) -> pandas.DataFrame:
        """A row for each field that changed, and for each record that came or went."""
        import pandas

        rows = []
        for change in self.changes:
            for field in change.fields or [FieldChange("", None, None, False)]:
                rows.append((change.table, change.change, change.key, field.field, field.before,
                             field.after))
        names = ["table", "change", "key", "field", "before", "after"]
        return pandas.DataFrame(rows, columns=names)

    def __repr__(self) -> str:
        if self.same:
            return "<Diff: the same>"
        counts = "; ".join(
            f"{table}: " + ", ".join(f"{count} {what}" for what, count in changes.items())
            for table, changes in self.summary.items())
        return f"<Diff: {counts or 'other things than records'}>"


def _fields(changes: list[dict[str, Any]]) -> list[FieldChange]:
    return [FieldChange(change["field"], change["before"], change["after"],
                        change.get("turned", False)) for change in changes]


def diff(before: Union[Model, Source], after: Union[Model, Source], *,
         tolerance: float = 0.0) -> Diff:
    """What changed from one model or model file to another.

    Coordinates that are `tolerance` apart are the same, and other reals that differ by that part of
    the larger one.
    """
    if not isinstance(tolerance, Real) or isinstance(tolerance, bool):
        raise TypeError(f"a tolerance is a real, not {type(tolerance).__name__}")
    models = [model if isinstance(model, Model) else read(model) for model in (before, after)]
    return Diff(json.loads(models[0]._handle.diff(models[1]._handle, float(tolerance))))
