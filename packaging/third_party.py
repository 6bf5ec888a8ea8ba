#!/usr/bin/env python3
"""Makes THIRD-PARTY.md of third_party.json, where each part of others has its licence.

usage: third_party.py [--check]    with --check it only tells whether THIRD-PARTY.md is up to date
"""
import json
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DOCUMENT = ROOT / "THIRD-PARTY.md"
HEAD = """\
# What the binaries contain that is not ours

TAMUR Reader itself is under the [MIT licence](LICENSE). Its binaries contain parts by others, which
are listed here with their licences; the texts of these follow. None of the parts was changed. The
sources of all of them are in Debian 12 or, for the page of `tamur view`, in the npm registry, under
the name given. In the packages for Debian are only those that are no libraries of the system. This
file is made by `packaging/third_party.py`.
"""
ORIGINS = {"linux": "Debian package", "windows": "Debian package (Windows)",
           "source": "Debian source package", "npm": "npm package"}


def read_list(with_system_libraries: bool = False) -> list[dict]:
    """The parts; where the libraries of the system are linked without those that these are."""
    parts = json.loads((ROOT / "packaging/third_party.json").read_text("utf-8"))["parts"]
    return [part for part in parts
            if not (with_system_libraries and part.get("isSystemLibrary"))]


def binary_name(path: Path) -> str:
    """As the list names it: without the version that a library ends with."""
    return re.sub(r"\.so\.[\d.]+$", ".so", path.name)


def identifiers(expression: str) -> list[str]:
    """The licences and exceptions that an SPDX expression names."""
    return [word for word in re.findall(r"[\w.+-]+", expression)
            if word not in ("AND", "OR", "WITH")]


def licence_text(identifier: str) -> str:
    return (ROOT / "LICENSES" / f"{identifier}.txt").read_text("utf-8")


def section(part: dict) -> str:
    origins = "; ".join(f"{ORIGINS[kind]} `{name}`" for kind, name in part["from"].items())
    copyrights = "\n".join(f"- Copyright © {line}" for line in part["copyright"])
    binaries = ", ".join(f"`{name}`" for name in part["in"])
    system = "; a library of the system" if part.get("isSystemLibrary") else ""
    return (f"## {part['name']}\n\n"
            f"{part['what']}. {part['home']} ({origins}{system})\n\n"
            f"In: {binaries}\n\n"
            f"Licence: {part['licence']}\n\n{copyrights}\n")


def sections_and_texts(parts: list[dict]) -> str:
    used = sorted({name for part in parts for name in identifiers(part["licence"])})
    texts = [f"## {name}\n\n```\n{licence_text(name).rstrip()}\n```\n" for name in used]
    return "\n".join([*map(section, parts), "# Texts of the licences\n", *texts])


def document() -> str:
    return f"{HEAD}\n{sections_and_texts(read_list())}"


def packages_of_page() -> set[str]:
    """What the page of `tamur view` is built of."""
    return set(json.loads((ROOT / "viewer/package.json").read_text("utf-8"))["dependencies"])


def main() -> int:
    text = document()
    if sys.argv[1:] != ["--check"]:
        DOCUMENT.write_text(text, "utf-8")
    elif DOCUMENT.read_text("utf-8") != text:
        print("THIRD-PARTY.md is not what packaging/third_party.py makes", file=sys.stderr)
        return 1
    if {part["from"].get("npm") for part in read_list()} - {None} != packages_of_page():
        print("third_party.json and viewer/package.json name different packages", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
