"""What the tests of the package share. tools/dev/test_python sets the environment."""
import contextlib
import json
import os
import pathlib
import sys

import pytest

from tamur import _library

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tests" / "support"))
from whole_dump import whole_dump  # noqa: E402
SAMPLES = sorted((PROJECT / "samples").glob("*.txt"))
GENERATED = pathlib.Path(os.environ["TAMUR_GENERATED"])
MODELS = sorted(pathlib.Path(os.environ["TAMUR_MODELS"]).glob("*.txt"))


@pytest.fixture
def hall() -> pathlib.Path:
    return PROJECT / "samples" / "hall.txt"


@contextlib.contextmanager
def standard_output_in(path: pathlib.Path):
    """Of the whole process, the library's too."""
    sys.stdout.flush()
    before = os.dup(1)
    with open(path, "wb") as file:
        os.dup2(file.fileno(), 1)
    try:
        yield
    finally:
        os.dup2(before, 1)
        os.close(before)


def run_tool(output: pathlib.Path, *arguments: str) -> int:
    with standard_output_in(output):
        return _library.run_tool(arguments)


def dump(model: pathlib.Path, scratch: pathlib.Path):
    """What `tamur dump` says of a file; nothing when it is refused."""
    if run_tool(scratch, "dump", str(model)) != 0:
        return None
    with open(scratch, encoding="utf-8") as file:
        return whole_dump(json.load(file))
