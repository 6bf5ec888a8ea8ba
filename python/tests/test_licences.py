"""The licences are in the package."""
import importlib.metadata

import pytest

from conftest import PROJECT


@pytest.mark.parametrize("name", ["LICENSE", "THIRD-PARTY.md"])
def test_the_licences_come_with_the_package(name):
    installed, = [file for file in importlib.metadata.files("tamur") or () if file.name == name]
    assert installed.locate().read_text("utf-8") == (PROJECT / name).read_text("utf-8")
