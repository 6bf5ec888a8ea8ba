"""The pages about the package: their code runs, and prints what is below it."""
import contextlib
import io
import os
import re
import shutil
import subprocess

import pytest

import tamur
from conftest import GENERATED, PROJECT

BLOCK = re.compile(r"```python\n(.*?)```\n(?:```text\n(.*?)```)?", re.S)
FILES = 2000


@pytest.fixture
def place(tmp_path, monkeypatch):
    """A folder with the files that the pages name."""
    samples = PROJECT / "samples"
    hall = (samples / "hall.txt").read_bytes()
    (tmp_path / "hall.txt").write_bytes(hall)
    (tmp_path / "before.txt").write_bytes(hall)
    (tmp_path / "after.txt").write_bytes(hall.replace(b"1 1 1 1 1 1 5", b"1 1 1 1 1 2 5", 1))
    (tmp_path / "models").mkdir()
    names = ("portique", "hall", "batiment")
    copies = [shutil.copy(samples / f"{name}.txt", tmp_path / f"{name}.copy") for name in names]
    for number in range(FILES):
        os.link(copies[number % 3], tmp_path / "models" / f"{number:05}.txt")
    monkeypatch.chdir(tmp_path)
    return tmp_path


def run_page(name):
    """Runs the code of a page and returns its names."""
    page = (PROJECT / "docs" / name).read_text(encoding="utf-8")
    names = {"__name__": "__main__"}
    for code, expected in BLOCK.findall(page):
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            exec(compile(code, name, "exec"), names)  # the page is ours
        assert plain(output.getvalue()) == plain(expected), code
    return names


def plain(text):
    return [line.rstrip() for line in text.splitlines()]


def test_the_page_of_the_package(place):
    names = run_page("python.md")
    by_threads = pandas_of(names["pandas"], names, place)
    table = names["table"]  # by the cluster, the last recipe
    assert len(table) == FILES and table.equals(by_threads)
    totals = table.groupby(table.index % 3)[["steel", "concrete"]].nunique()
    assert (totals == 1).all().all() and (table["steel"] + table["concrete"] > 0).all()


def pandas_of(pandas, names, place):
    files = sorted((place / "models").glob("*.txt"))
    return pandas.DataFrame(map(names["quantities"], [file.relative_to(place) for file in files]))


def test_the_tutorial(place, tmp_path):
    names = run_page("python-tutorial.md")
    assert (place / "hall.png").read_bytes().startswith(b"\x89PNG")
    sums = subprocess.run([PROJECT / "build/native/tamur", "check", "--lang", "en", "--sums",
                           place / "hall.txt"], capture_output=True, text=True).stdout
    for case, name, force in re.findall(r"load case (\d+) .*?(F[xyz]) (\S+)", sums):
        total = names["total"](names["hall"].loads(case=int(case)))
        assert total["xyz".index(name[1])] == pytest.approx(float(force), rel=1e-6), case
    assert sums.count("load case") == 4


def test_the_readme_as_in_a_clone():
    """With the package that `./dev python` imports, which is not installed."""
    readme = (PROJECT / "README.md").read_text(encoding="utf-8")
    [code] = re.findall(r"```python\n(.*?)```", readme, re.S)
    package = PROJECT / "build/native/python/package"
    code += "\nprint(tamur.__file__, m.bars['length'].sum())"
    answer = subprocess.run(["/usr/bin/python3", "-c", code], cwd=PROJECT, capture_output=True,
                            text=True, env={**os.environ, "PYTHONPATH": str(package)}, check=True)
    assert answer.stdout == f"{package / 'tamur/__init__.py'} 440.63453348751466\n"


def test_the_list_of_columns():
    assert (PROJECT / "docs" / "columns.md").read_text(encoding="utf-8") == (
        GENERATED / "python" / "columns.md").read_text(encoding="utf-8")


def test_every_public_name_is_on_the_page():
    page = (PROJECT / "docs" / "python.md").read_text(encoding="utf-8")
    for name in ("read", "diff", "ImportRefused", "Ragged"):
        assert name in page and hasattr(tamur, name)
