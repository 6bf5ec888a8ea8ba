"""The types that the package declares."""
import ast
import pathlib
import subprocess
import sys

import pytest

import tamur

HERE = pathlib.Path(__file__).parent
PACKAGE = pathlib.Path(tamur.__file__).parent


def mypy(*arguments):
    return subprocess.run(
        ["/usr/bin/python3", "-m", "mypy", "--strict", "--python-version", "3.9",
         "--python-executable", sys.executable, *arguments], capture_output=True, text=True)


def test_the_example_and_the_package_pass_strictly(tmp_path):
    result = mypy("--cache-dir", str(tmp_path), str(HERE / "typed_example.py"))
    assert result.returncode == 0, result.stdout
    result = mypy("--cache-dir", str(tmp_path), str(PACKAGE), "--config-file",
                  str(HERE.parent / "pyproject.toml"))
    assert result.returncode == 0, result.stdout


def test_columns_that_do_not_exist_are_errors(tmp_path):
    wrong = tmp_path / "wrong.py"
    wrong.write_text('import tamur\nreal: int = tamur.read("x").bars["lenght"]\n'
                     'tamur.read(3)\n')
    result = mypy("--cache-dir", str(tmp_path), str(wrong))
    assert "wrong.py:2" in result.stdout and "wrong.py:3" in result.stdout


@pytest.mark.parametrize("module", sorted(PACKAGE.glob("*.py")), ids=lambda path: path.name)
def test_python_39_reads_every_module(module):
    ast.parse(module.read_text(encoding="utf-8"), feature_version=(3, 9))
