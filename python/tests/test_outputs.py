"""What is written of a model is what the tool writes."""
import os
import subprocess
import sys

import openpyxl
import pytest

import tamur


def run_tool(*arguments):
    subprocess.run([sys.executable, "-m", "tamur", *map(str, arguments)], check=True,
                   stdout=subprocess.PIPE)


@pytest.mark.parametrize("name", ["hall.saf.xlsx", "hall.vtu", "hall.glb"])
def test_export_is_that_of_the_tool(hall, tmp_path, name):
    run_tool("export", hall, "-o", tmp_path / ("tool-" + name))
    summary = tamur.read(hall).export(tmp_path / name)
    assert "written" in summary
    ours = (tmp_path / name).read_bytes()
    theirs = (tmp_path / ("tool-" + name)).read_bytes()
    if name.endswith(".xlsx"):  # packed with the time of day
        assert cells(tmp_path / name) == cells(tmp_path / ("tool-" + name))
    else:
        assert ours == theirs


def cells(path):
    return [[[cell.value for cell in row] for row in sheet.rows]
            for sheet in openpyxl.load_workbook(path) if sheet.title not in ("Project", "Model")]


def test_export_of_a_part(hall, tmp_path):
    m = tamur.read(hall, check=True)
    m.export(tmp_path / "all", "csv")
    m.export(tmp_path / "part", "csv", case=m.cases["number"][0])
    sizes = [len((tmp_path / folder / "ChargesLineaires.csv").read_bytes())
             for folder in ("all", "part")]
    assert sizes[1] < sizes[0]


def test_what_cannot_be_exported(hall, tmp_path):
    m = tamur.read(hall, check=True)
    with pytest.raises(ValueError, match="csv"):
        m.export(tmp_path / "hall.dwg")
    with pytest.raises(ValueError, match="none of"):
        m.export(tmp_path / "hall", "dwg")
    with pytest.raises(ValueError, match="4711"):
        m.export(tmp_path / "hall.vtu", case=4711)
    with pytest.raises(OSError, match="no such folder|No such file"):
        m.export(tmp_path / "no such folder" / "hall.vtu")
    m.export(tmp_path / "hall.vtu")
    with pytest.raises(OSError, match="there already"):
        m.export(tmp_path / "hall.vtu")
    m.export(tmp_path / "hall.vtu", force=True)
    with pytest.raises(ValueError, match="check=True"):
        tamur.read(hall.read_bytes()).export(tmp_path / "bytes.vtu")
    tamur.read(hall.read_bytes(), check=True).export(tmp_path / "bytes.vtu")


def test_view_is_the_page_of_the_tool(hall, tmp_path):
    run_tool("view", hall, "-o", tmp_path / "tool.html")
    page = tmp_path / "page.html"
    assert tamur.read(hall).view(page).encode() == page.read_bytes()
    assert page.read_bytes() == (tmp_path / "tool.html").read_bytes()
    tamur.read(hall).view(page)  # a page is replaced
    page.write_text("my thesis")
    with pytest.raises(FileExistsError):
        tamur.read(hall).view(page)
    assert page.read_text() == "my thesis"
    tamur.read(hall).view(page, force=True)
    assert os.listdir(tmp_path).count("page.html") == 1 and len(os.listdir(tmp_path)) == 2


def test_notebooks_show_the_page(hall):
    shown = tamur.read(hall)._repr_html_()
    assert shown.startswith("<iframe") and "&lt;!doctype html&gt;" in shown[:300]
    assert "<table>" in shown
