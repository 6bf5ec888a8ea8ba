"""Every table equals what `tamur dump` says, on the samples and on models that no engineer would
write."""
import math

import pytest

import tamur
from tamur._tables import ALL_TABLES, Modal, Settings
from conftest import MODELS, SAMPLES, dump

DUMPED = [table for table in ALL_TABLES if table.layout.columns[0].field]
EMPTY_REFERENCES = {"materials": {"MaterialName": None}, "sections": {"SectionLib": None},
                    "releases": {"AttacheLib": None}}


def as_dumped(value):
    """JSON has no word for what is no finite number."""
    if isinstance(value, list):
        return [as_dumped(one) for one in value]
    if isinstance(value, float) and not math.isfinite(value):
        return "nan" if math.isnan(value) else "inf" if value > 0 else "-inf"
    return value


def coordinates(point):
    return [point["x"], point["y"], point["z"]]


def dumped_value(column, record):
    """The value of a record, as the column of the table has it."""
    value = record
    for part in column.field.split("."):
        value = value[part]
    if column.kind == "points":
        return [coordinates(point) for point in value["tabPoints"]]
    if column.kind == "texts":
        return value["tabLabels"]
    if column.field == "portCoef":
        return value["tabCoef"]
    return coordinates(value) if column.kind == "real" and isinstance(value, dict) else value


def check_references(column, places, model, records):
    """The records that the places lead to are those that the dump repeats in each record."""
    table = getattr(model, column.target)
    targets = records[table.layout.table]
    for place, record in zip(places.tolist(), records["of"]):
        repeated = record[column.field]
        if place == -1:
            assert not targets
            assert EMPTY_REFERENCES[column.target].items() <= repeated.items()
        else:
            assert targets[place] == repeated


def check_table(model, kind, records, everything):
    table = model._table(kind)
    assert len(table) == len(records), kind
    if not records:
        return
    for column in table.layout.columns:
        if not column.field:
            continue
        values = table[column.name]
        if column.kind == "reference":
            check_references(column, values, model, {**everything, "of": records})
            continue
        found = [one.tolist() for one in values] if column.is_list else values.tolist()
        expected = [dumped_value(column, record) for record in records]
        assert as_dumped(found) == expected, f"{table.layout.name}.{column.name}"
        if column.is_list:
            check_ragged(values)


def check_ragged(values):
    assert len(values.values) == values.offsets[-1] == values.lengths.sum()
    for place in (0, len(values) - 1):
        whole = values.values[values.offsets[place]:values.offsets[place + 1]]
        assert whole.tolist() == values[place].tolist() or whole.dtype == float


def check_model(model, everything):
    for kind in DUMPED:
        if kind is Modal:
            records = [everything["Modes"]]
        elif kind is Settings:
            records = [everything["StructureGlobalData"]]
        else:
            records = everything[kind.layout.table]
        check_table(model, kind, records, everything)
    assert model.messages == everything["Messages"]
    assert model.settings.skipped_combinations == everything["NbCombinaisonsSkipped"]


@pytest.mark.parametrize("path", SAMPLES, ids=lambda path: path.stem)
def test_samples(path, tmp_path):
    check_model(tamur.read(path), dump(path, tmp_path / "dump.json"))


def test_generated_and_hostile_models(tmp_path):
    refused = 0
    for path in MODELS:
        everything = dump(path, tmp_path / "dump.json")
        try:
            model = tamur.read(path)
        except tamur.ImportRefused as error:
            assert everything is None, f"{path}: {error}"
            refused += 1
            continue
        assert everything is not None, path
        try:
            check_model(model, everything)
        except AssertionError as error:
            raise AssertionError(f"{path}: {error}") from error
    assert len(MODELS) >= 1000 and refused < len(MODELS) / 2


def test_a_check_changes_no_table(tmp_path):
    for path in SAMPLES:
        plain, checked = tamur.read(path), tamur.read(path, check=True)
        for kind in DUMPED:
            one, other = plain._table(kind).rows, checked._table(kind).rows
            assert one.tobytes() == other.tobytes()


@pytest.mark.parametrize("path", SAMPLES, ids=lambda path: path.stem)
def test_derived_columns(path):
    model = tamur.read(path)
    bars = model.bars
    assert bars["length"] == pytest.approx(
        ((bars["end"] - bars["start"]) ** 2).sum(axis=1) ** 0.5)
    for table in (model.surfaces, model.openings, model.walls, model.surface_loads):
        for outline, area in zip(table["outline"], table["area"]):
            assert area == pytest.approx(area_of(outline))


def area_of(corners):
    normal = [0.0, 0.0, 0.0]
    for (x, y, z), (u, v, w) in zip(corners, [*corners[1:], corners[0]]):
        normal = [normal[0] + y * w - z * v, normal[1] + z * u - x * w, normal[2] + x * v - y * u]
    return math.hypot(*normal) / 2
