"""What the component's own registration writes to the registry, for the installer's tables.

The classes come from the scripts that the DLL carries and runs, the type library from the contract.
"""
import re
from collections.abc import Iterator
from pathlib import Path
from typing import NamedTuple

CLASSES = "SOFTWARE\\Classes"  # of the machine
RUN_SCRIPTS = ("13502.rgs", "13503.rgs")  # of the two classes that hosts can create
TOKEN = re.compile(r"'((?:[^']|'')*)'|(\S+)")
LIBRARY = re.compile(r"uuid\(([-0-9A-F]{36})\),\s*version\((\d+\.\d+)\),\s*"
                     r"helpstring\(\"([^\"]*)\"\)\s*\]\s*library")


class Row(NamedTuple):
    """One value below CLASSES; a key of its own when there is neither name nor value."""
    key: str
    name: str | None
    value: str | None


def read_script(text: str, module: str) -> Iterator[Row]:
    """The values that a registry script writes; `module` is what it calls %MODULE%."""
    tokens = [quoted.replace("''", "'") if not word else word
              for quoted, word in TOKEN.findall(text)]
    path: list[str] = []
    position = 2  # after "HKCR {"

    def value() -> str | None:
        nonlocal position
        if tokens[position:position + 2] != ["=", "s"]:
            return None
        position += 3
        return tokens[position - 1].replace("%MODULE%", module)

    while position < len(tokens):
        token = tokens[position]
        position += 1
        if token == "}":
            path and path.pop()
        elif token == "val":
            name = tokens[position]
            position += 1
            yield Row("\\".join(path), name, value())
        elif token not in ("NoRemove", "ForceRemove"):
            path.append(token)
            written = value()
            opens = tokens[position] == "{"
            position += opens
            if written is not None or not opens:
                yield Row("\\".join(path), None, written)
            if not opens:
                path.pop()


def type_library(idl: str, module: str, folder: str) -> Iterator[Row]:
    identifier, version, description = LIBRARY.search(idl).groups()
    key = f"TypeLib\\{{{identifier}}}\\{version}"
    yield Row(key, None, description)
    yield Row(key + "\\0\\win64", None, module)
    yield Row(key + "\\FLAGS", None, "0")
    yield Row(key + "\\HELPDIR", None, folder)


def rows(generated: Path, idl: Path, module: str, folder: str) -> list[Row]:
    found = []
    for script in RUN_SCRIPTS:
        found += read_script((generated / script).read_text(encoding="ascii"), module)
    return found + list(type_library(idl.read_text(encoding="utf-8"), module, folder))
