"""What a type checker sees of the package: test_typing.py has mypy look at it, strictly."""
from __future__ import annotations

import pathlib

import numpy as np
from numpy.typing import NDArray

import tamur


def steel_weight(path: pathlib.Path) -> dict[str, float]:
    model = tamur.read(path, check=True)
    bars = model.bars
    lengths: NDArray[np.float64] = bars["length"]
    areas: NDArray[np.float64] = model.sections[bars["start_section"]]["area"]
    densities: NDArray[np.float64] = model.materials[bars["material"]]["unit_weight"]
    names: NDArray[np.object_] = model.sections["name"]
    weights = lengths * areas * densities
    totals = np.bincount(bars["start_section"], weights, len(names))
    return dict(zip(names.tolist(), totals.tolist()))


def labels(model: tamur.Model) -> list[str]:
    column: tamur.Ragged = model.nodes["labels"]
    return [str(label) for label in column.values]


def factors(model: tamur.Model) -> dict[int, float]:
    return model.combinations[101]


def errors(model: tamur.Model) -> int:
    return len(model.findings.of("error"))


def first_load(model: tamur.Model) -> float:
    return float(model.loads(case=1).point[0]["fz"])


def changes(before: str, after: bytes) -> list[str]:
    return [change.table for change in tamur.diff(before, after).changes]
