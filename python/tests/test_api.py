"""The package as its users call it."""
import io
import os
import pathlib
import pickle
import re
import tempfile

import numpy as np
import pytest

import tamur
from conftest import PROJECT

SETTINGS = b"#Version\n14.1E\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n0\n"


def test_every_kind_of_source(hall, tmp_path, monkeypatch):
    (tmp_path / "temporary").mkdir()
    monkeypatch.setattr(tempfile, "tempdir", str(tmp_path / "temporary"))
    content = hall.read_bytes()
    expected = tamur.read(str(hall)).bars.rows.tobytes()
    with open(hall, "rb") as file:
        for source in (hall, content, bytearray(content), memoryview(content), file,
                       io.BytesIO(content)):
            assert tamur.read(source).bars.rows.tobytes() == expected
    odd = os.fsdecode(os.fsencode(tmp_path) + b"/\xff mod\xe8le.txt")  # no UTF-8
    pathlib.Path(odd).write_bytes(content)
    assert tamur.read(odd).bars.rows.tobytes() == expected
    with pytest.raises(tamur.ImportRefused):
        tamur.read(content[:100])
    assert not list((tmp_path / "temporary").iterdir())


@pytest.mark.parametrize("source", [None, 3, 3.5, [], {"a": 1}, object(), True])
def test_what_is_no_source_is_a_type_error(source):
    with pytest.raises(TypeError, match="path, bytes, or an open file"):
        tamur.read(source)


def test_a_file_in_text_mode_is_a_type_error(hall):
    with open(hall, encoding="latin-1") as file, pytest.raises(TypeError, match="binary"):
        tamur.read(file)


def test_what_reads_texts_is_a_type_error(hall):
    with open(hall, encoding="utf-8") as file, pytest.raises(TypeError, match="binary"):
        tamur.read(file)  # Latin letters that are no UTF-8
    with pytest.raises(TypeError, match="binary"):
        tamur.read(io.StringIO("#Version"))


def test_arguments_of_a_wrong_type(hall):
    for wrong in ("no", 1, None):
        with pytest.raises(TypeError, match="check is True or False"):
            tamur.read(hall, check=wrong)
    for wrong in ("0.1", None, True, 1j):
        with pytest.raises(TypeError, match="tolerance is a real"):
            tamur.diff(hall, hall, tolerance=wrong)
    assert tamur.diff(hall, hall, tolerance=np.float32(0.5)).same


def test_every_other_byte_of_a_view(hall):
    content = hall.read_bytes()
    doubled = bytes(byte for one in content for byte in (one, 0))
    assert tamur.read(memoryview(doubled)[::2]).bars.rows.tobytes() == (
        tamur.read(hall).bars.rows.tobytes())


def test_odd_names_are_refused_as_others(tmp_path):
    folder, file = tmp_path / "folder", tmp_path / "file"
    file.write_bytes(b"")
    os.mkfifo(tmp_path / "pipe")
    (tmp_path / "pipe\udcff").symlink_to(tmp_path / "pipe")
    for path in (folder, tmp_path / "folder\udcff"):
        path.mkdir()
    (tmp_path / "file\udcff").write_bytes(b"")
    for name in ("nothing{}", "folder{}", "pipe{}", "nothing{}" + 300 * "n", "file{}"):
        reasons = []
        for odd in ("", "\udcff"):
            path = str(tmp_path / name.format(odd))
            with pytest.raises(tamur.ImportRefused) as refused:
                tamur.read(path)
            assert refused.value.source == path
            reasons.append((refused.value.code, refused.value.cause))
        assert reasons[0] == reasons[1], name


def test_a_refused_file_says_why(tmp_path):
    with pytest.raises(tamur.ImportRefused) as missing:
        tamur.read(tmp_path / "nothing.txt")
    assert missing.value.code == "TMR001" and "cannot be opened" in missing.value.cause
    assert str(missing.value).startswith(str(tmp_path / "nothing.txt: "))
    with pytest.raises(tamur.ImportRefused) as old:
        tamur.read(b"#Version\n9.9\n", check=True)
    assert old.value.code == "TMR004" and old.value.source == "<bytes>"
    assert isinstance(pickle.loads(pickle.dumps(old.value)), tamur.ImportRefused)
    with pytest.raises(tamur.ImportRefused):
        tamur.read(tmp_path)
    with pytest.raises(tamur.ImportRefused, match="^'': the file cannot be opened"):
        tamur.read("")
    with pytest.raises(ValueError):
        tamur.read("a\0b")


def test_columns_and_rows(hall):
    bars = tamur.read(hall).bars
    assert bars["start"].shape == (55, 3) and bars["start"].dtype == np.float64
    assert bars["identifier"].dtype == np.int32 and bars["identifier"][0] == 101
    assert bars["type"][0] == "Poutre" and isinstance(bars["type"][0], str)
    assert bars["labels"][2].tolist() == ["Arbalétrier-1G"]
    row = bars[2]
    assert row.length == row["length"] == pytest.approx(9.2195, abs=1e-4)
    assert row["labels"].tolist() == ["Arbalétrier-1G"] and "length" in dir(row)
    assert bars[-1].identifier == bars["identifier"][-1] and len(list(bars)) == 55
    assert bars.columns["length"].unit == "m" and "length: from end to end [m]" in bars.__doc__
    assert bars.find(103).identifier == 103
    with pytest.raises(KeyError):
        bars.find(9999)
    with pytest.raises(AttributeError):
        row.nothing
    with pytest.raises(KeyError, match="no column 'lenght'"):
        bars["lenght"]


def test_parts_of_tables(hall):
    bars = tamur.read(hall).bars
    assert bars[5:8]["identifier"].tolist() == bars["identifier"][5:8].tolist()
    braces = bars[bars["type"] == "Tirant"]
    assert len(braces) == 12 or len(braces) > 0
    assert set(braces["type"]) == {"Tirant"}
    assert [list(one) for one in braces["labels"]] == [
        list(bars["labels"][place]) for place in np.flatnonzero(bars["type"] == "Tirant")]
    assert len(bars[[]]) == 0 and len(bars[[]]["labels"].values) == 0
    assert bars[[3, 1, 3]]["identifier"].tolist() == [104, 102, 104]
    for wrong in (55, -56):
        with pytest.raises(IndexError):
            bars[wrong]
    for wrong, named in (([0, 55, 1], "55"), ([-2], "-2"), ([True, False], "2 booleans"),
                         (np.array([3, 2**64 - 1], np.uint64), str(2**64 - 1))):
        with pytest.raises(IndexError, match=f"{named}\\b"):
            bars[wrong]
    with pytest.raises(TypeError, match="one dimension"):
        bars[0, 1]
    for wrong in (None, 1.5, ["start"], True, {"a"}, [[1]], [0.5]):
        with pytest.raises(TypeError):
            bars[wrong]


def test_references(hall):
    model = tamur.read(hall)
    materials = model.materials[model.bars["material"]]
    assert len(materials) == len(model.bars) and set(materials["name"]) <= {
        *model.materials["name"]}
    absent = model.materials[[-1, 0]]
    assert absent["name"][0] is None and np.isnan(absent["modulus"][0])
    assert absent["name"][1] == model.materials["name"][0]


def test_a_reference_to_nothing():
    bar = b"#Elements\n2 1 0 2 0  0 0 0 3 4 0  0 0 0  1 2 0 0 1 1 1 1 1 1 5\n"
    model = tamur.read(SETTINGS + bar)
    assert model.bars["start_release"].tolist() == [-1] and len(model.releases) == 0
    assert model.releases[model.bars["start_release"]]["name"].tolist() == [None]
    assert model.bars["length"].tolist() == [5.0]


def test_cases_and_loads(hall):
    model = tamur.read(hall)
    assert model.cases.find(2).title == "Neige"
    snow = model.loads(case=2)
    assert set(snow.line["load_case"]) == {2} and len(snow) == 12 == len(snow.line)
    assert len(model.loads()) == sum(len(table) for table in model.loads())
    assert model.combinations[101] == {1: 1.35, 2: 1.5} == model.combinations.as_dict()[101]
    assert 101 in model.combinations and 999 not in model.combinations
    with pytest.raises(KeyError, match="there is no combination 1: m.combinations"):
        model.combinations[1]
    with pytest.raises(KeyError, match="groups: there is no row with the title 'Cable'"):
        model.groups.find("Cable")
    with pytest.raises(KeyError, match="groups: there is no row with the number 60"):
        model.groups.find(60)
    assert model.groups.find("Câbles").number == 6


def test_what_has_no_loads(hall):
    model = tamur.read(hall)
    assert len(model.loads(case=np.int64(2))) == 12 and len(model.loads(case=301)) == 0
    for wrong in ("2", [2], 2.0, True, np.True_):
        with pytest.raises(TypeError, match="load case is a number"):
            model.loads(case=wrong)
    with pytest.raises(KeyError, match="no load case 999"):
        model.loads(case=999)
    with pytest.raises(KeyError, match=r"m\.combinations\[101\]"):
        model.loads(case=101)
    content = hall.read_bytes()
    start = content.index(b"2 Neige")
    end = content.index(b"#", start)
    undeclared = tamur.read(content[:start] + content[end:])  # its loads are in the tables
    assert undeclared.cases["number"].tolist() == [1] and len(undeclared.loads(case=2)) == 12


def test_what_is_not_found_by_a_wrong_type(hall):
    model = tamur.read(hall)
    for wrong in (None, 2.0, True, [2], b"Neige"):
        with pytest.raises(TypeError, match="row is found by"):
            model.cases.find(wrong)
        with pytest.raises(TypeError, match="combination has a number"):
            wrong in model.combinations
        with pytest.raises(TypeError):
            model.combinations[wrong if wrong != [2] else 2.5]
    assert np.int32(101) in model.combinations
    assert model.combinations[np.int32(101)] == model.combinations[101]
    assert model.cases.find(np.int32(2)).title == model.cases.find(np.str_("Neige")).title


def test_settings_version_and_messages(hall):
    model = tamur.read(hall)
    assert model.version == "12.2A" and model.settings.tolerance == 0.001
    assert dict(model.settings)["service_pack"] == -1
    assert model.modal.percent_x == 100
    batiment = tamur.read(PROJECT / "samples" / "erreurs.txt")
    assert len(batiment.messages) == 1 and "Poids propre" in batiment.messages[0]


def test_outlines_of_sections():
    columns = b" 1 2 3 4 5 6 7 8 9 10 11 "
    model = tamur.read(SETTINGS + b"#Geometries\nS1" + columns + b"2 S 0 0 1 0 5 6\nC1" + columns
                       + b"0 C 0.5\nN" + columns + b"-3 F 0.25\n")
    assert model.sections.outline(0).tolist() == [[0, 0, 5], [1, 0, 6]]
    assert model.sections.outline(1).shape == (0, 2)
    assert model.sections["outline_points"].tolist() == [2, 0, -3]
    assert [chr(code) for code in model.sections["outline_code"]] == ["S", "C", "F"]
    assert model.sections["radius"].tolist() == [0, 0.5, 0.25]


def test_lists_that_announce_more_than_they_hold():
    model = tamur.read(SETTINGS + b"#Geometries\nS 1 2 3 4 5 6 7 8 9 10 11 49000 F 1 2\n"
                       b"#Elements\n1 1 0 1 49999  0 0 0  A B\n1 2 0 1 1  0 0 0  C\n")
    outline = model.sections.outline(0)
    assert outline.shape == (49000, 2) and outline[0].tolist() == [1, 2] and outline[1:].sum() == 0
    labels = model.nodes["labels"]
    assert labels.lengths.tolist() == [49999, 1] and len(labels.values) == 50000
    assert labels.values[:3].tolist() == ["A", "B", ""] and labels.values[49999] == "C"
    assert labels[1].tolist() == ["C"] and labels[0][-1] == ""
    for wrong in (2, -3):
        with pytest.raises(IndexError):
            labels[wrong]
    with pytest.raises(TypeError):
        labels["a"]


def test_findings():
    path = PROJECT / "samples" / "erreurs.txt"
    findings = tamur.read(path, check=True).findings
    assert len(findings) == sum(findings.counts.values()) > 30
    first = findings.find
    assert findings["line"].tolist() == sorted(findings["line"].tolist()) and callable(first)
    material = findings[findings["code"] == "TMR631"][0]
    assert material.severity == "warning" and "modulus" in material.text and material.kind
    assert material.text != material.text_fr and "31000" in list(material["values"])
    assert len(findings.of("error")) + len(findings.of("warning")) + len(
        findings.of("note")) == len(findings)
    with pytest.raises(ValueError):
        findings.of("trouble")
    errors = findings.of("error")
    assert sum(errors.counts.values()) == len(errors)
    assert set(errors.counts) == set(errors["code"])
    assert findings[:0].counts == {}
    assert findings[3:4].counts == {findings["code"][3]: 1} == findings[3:4][[0]].counts
    with pytest.raises(ValueError, match="check=True"):
        tamur.read(path).findings


def test_counts_of_a_severity_are_of_all_findings():
    model = tamur.read(SETTINGS + b"#Elements\n" + 10_005 * b"77 1\n", check=True)
    counts = model.findings.counts
    code = max(counts, key=counts.__getitem__)
    assert counts[code] == 10_005 and len(model.findings) < 10_005
    severity = model.findings[model.findings["code"] == code][0].severity
    assert model.findings.of(severity).counts[code] == 10_005


def test_diff(hall):
    text = hall.read_bytes()
    changed = text.replace(b"2 101 0 2 1  0 -9 0  0 -9 6", b"2 101 0 2 1  0 -9 0  0 -9 7")
    assert changed != text
    diff = tamur.diff(hall, changed)
    assert diff and not diff.same and len(diff) == 1
    change, = diff.changes
    assert (change.table, change.key) == ("bars", {"identifier": 101})
    assert {field.field for field in change.fields} >= {"endPoint"}
    assert diff.summary["bars"] and diff.to_frame()["table"].tolist()[0] == "bars"
    assert not tamur.diff(hall, hall) and repr(tamur.diff(hall, hall)) == "<Diff: the same>"
    assert not tamur.diff(text, text.replace(b"2 101 0 2 1  0 -9 0  0 -9 6",
                                             b"2 101 0 2 1  0 -9 0  0 -9 6.0001"), tolerance=0.01)
    other = tamur.read(re.sub(rb"(#Tolerance\s+)1e-3", rb"\g<1>2e-3", text))
    assert [field.field for field in tamur.diff(tamur.read(hall), other).settings] == ["tol3D"]
    for wrong in (-1, float("nan"), float("inf")):
        with pytest.raises(ValueError):
            tamur.diff(hall, hall, tolerance=wrong)
    with pytest.raises(TypeError):
        tamur.diff(hall, 3)


def test_frames(hall):
    model = tamur.read(hall)
    frame = model.bars.to_frame()
    assert frame["end_z"].tolist() == model.bars["end"][:, 2].tolist()
    assert frame["labels"][0].tolist() == ["Poteau-1G"] and len(frame) == 55
    supports = model.point_supports.to_frame()
    assert {"stiffness_1", "stiffness_6", "position_x"} <= set(supports.columns)
    assert len(model.seismic_cases.to_frame()) == 0


def test_the_frame_of_all_loads(hall):
    model = tamur.read(hall)
    frame = model.loads(case=2).to_frame()
    assert len(frame) == 12 and set(frame["table"]) == {"line_loads"}
    assert len(model.loads().to_frame()) == len(model.loads())
    assert set(model.loads().to_frame()["table"]) == {
        table.layout.name for table in model.loads() if len(table)}


def test_shown_as_text_and_html(hall):
    model = tamur.read(hall, check=True)
    text = repr(model.bars)
    assert text.startswith("bars: 55 rows\n") and "Poteau" in text or "Poutre" in text
    assert max(map(len, text.splitlines())) <= 110 and len(text.splitlines()) == 13
    assert repr(model.seismic_cases) == "seismic_cases: 0 rows"
    assert repr(model.bars[0]).startswith("<bars: identifier=101, ")
    assert "55 bars" in repr(model) and "<td>bars</td><td>55</td>" in model._repr_html_()
    html = model.bars._repr_html_()
    assert html.count("<tr>") == 12 and 'title="from end to end [m]"' in html
    assert "12 loads of case 2" in repr(model.loads(case=2))
    hostile = tamur.read(SETTINGS + b"#Materiaux\n<b>\x1b[31m&amp; 1 2 3 4 5\n#Elements\n")
    assert "\x1b" not in repr(hostile.materials) and "<b>" not in hostile.materials._repr_html_()
    assert "<Ragged: 55 rows, 55 values>" == repr(model.bars["labels"])


def test_arrays_cannot_be_changed(hall):
    bars = tamur.read(hall).bars
    for name in ("length", "start", "type"):
        with pytest.raises(ValueError):
            bars[name][0] = bars[name][1]
    mine = bars["start"].copy()
    mine += 1


@pytest.mark.parametrize("take", [slice(None), slice(0, 0), [2, 1, 0], [-1, 0]], ids=repr)
def test_no_array_of_a_table_can_be_changed(hall, take):
    model = tamur.read(hall)
    for table in (model.surfaces[take], model.nodes[take]):
        arrays = [table.rows, np.asarray(table)]
        for name in table.columns:
            column = table[name]
            if isinstance(column, tamur.Ragged):
                arrays += [column.values, column.offsets, column.lengths, *column]
            else:
                arrays.append(column)
        assert not any(array.flags.writeable for array in arrays)
    assert not model.sections.outline(0).flags.writeable


def test_tables_are_structured_arrays_to_numpy(hall):
    bars = tamur.read(hall).bars
    rows = np.asarray(bars)
    assert rows.dtype == bars.rows.dtype and rows["identifier"].tolist()[:2] == [101, 102]
    assert np.shares_memory(rows, bars.rows)
    mine = np.array(bars)
    mine["identifier"] = 0
    assert bars.__array__(copy=True).flags.writeable and bars["identifier"][0] == 101
    assert np.asarray(bars, bars.rows.dtype).tobytes() == rows.tobytes()
    wanted = np.dtype([(name, "<i8" if name == "identifier" else rows.dtype[name])
                       for name in rows.dtype.names])
    wide = np.asarray(bars, wanted)["identifier"]
    assert wide.dtype == np.int64 and wide.tolist() == bars["identifier"].tolist()
    with pytest.raises(ValueError, match="a copy"):
        bars.__array__(wanted, copy=False)


def test_rows_are_equal_by_their_values(hall):
    model, other = tamur.read(hall), tamur.read(hall)
    assert model.bars[0] == model.bars[0] == other.bars[0] and model.bars[0] != model.bars[1]
    assert model.surfaces[0] == other.surfaces[0] != other.surfaces[1]
    assert model.bars[0] in list(other.bars) and model.settings == other.settings
    absent = model.materials[[-1]][0]
    assert np.isnan(absent.modulus) and absent == other.materials[[-1]][0]
    assert model.bars[0] != model.nodes[0] and model.bars[0] != 101
    with pytest.raises(TypeError, match="unhashable"):
        hash(model.bars[0])


def test_texts_are_decoded_once_for_all_parts(hall):
    bars = tamur.read(hall).bars
    assert bars[[0]]["type"][0] is bars[[0]]["type"][0] is bars[0].type
    assert bars[[1]]["labels"][0][0] is bars[1:]["labels"][0][0]


def test_models_do_not_travel(hall):
    model = tamur.read(hall)
    with pytest.raises(TypeError, match="read its file there"):
        pickle.dumps(model)
    with pytest.raises(TypeError, match="its columns and frames do"):
        pickle.dumps(model.bars)
    assert pickle.loads(pickle.dumps(model.bars["start"])).shape == (55, 3)
