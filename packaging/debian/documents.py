#!/usr/bin/env python3
"""Writes documents as Debian wants them in packages: changelog.gz, tamur.1.gz, and for each
component COMPONENT/copyright.

usage: documents.py FOLDER MAINTAINER MAN_PAGE
"""
import gzip
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import release  # noqa: E402
import third_party  # noqa: E402


# The binaries of each package: its copyright names what these contain.
BINARIES = {
    "runtime": {"libTAMURReader.so"},
    "library": {"libtamur.so"},
    "development": {"libtamur_core.a", "libtamur_host.a"},
    "tool": {"tamur"},
}


def copyright_text(component: str) -> str:
    parts = [part for part in third_party.read_list(with_system_libraries=True)
             if not BINARIES[component].isdisjoint(part["in"])]
    licence = (release.ROOT / "LICENSE").read_text("utf-8")
    text = f"TAMUR Reader is under this licence:\n\n{licence}\n"
    if not parts:
        return text + "The package contains no parts by others.\n"
    return (f"{text}The package contains parts by others, none of them changed:\n\n"
            f"{third_party.sections_and_texts(parts)}")


def changelog(maintainer: str) -> str:
    return (f"tamur-reader ({release.version()}) unstable; urgency=medium\n\n"
            f"  * Release {release.version()}: see CHANGELOG.md of the sources.\n\n"
            f" -- {maintainer}  {release.day():%a, %d %b %Y} 00:00:00 +0000\n")


def write_packed(path: Path, content: bytes) -> None:
    path.write_bytes(gzip.compress(content, 9, mtime=0))


def main() -> int:
    folder, maintainer, man_page = Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3])
    folder.mkdir(parents=True, exist_ok=True)
    for component in BINARIES:
        (folder / component).mkdir(exist_ok=True)
        (folder / component / "copyright").write_text(copyright_text(component), "utf-8")
    write_packed(folder / "changelog.gz", changelog(maintainer).encode())
    write_packed(folder / "tamur.1.gz", man_page.read_bytes())
    return 0


if __name__ == "__main__":
    sys.exit(main())
