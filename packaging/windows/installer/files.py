"""A folder as directories, components and files of an installer: one component for each file."""
import re
import uuid
import xml.etree.ElementTree as ET
from collections.abc import Callable
from pathlib import Path

SHORT = re.compile(r"[A-Za-z0-9_]{1,8}(\.[A-Za-z0-9_]{1,3})?")


def identifier(kind: str, path: Path) -> str:
    """The same in every version, as the parts of an installer must be."""
    name = kind + re.sub(r"[^A-Za-z0-9_.]", "_", path.as_posix())
    if len(name) > 72:
        raise ValueError(f"{path}: too long a name for an installer")
    return name


class ShortNames:
    """Names for file systems and programs that know 8.3 only, as the tables demand them."""

    def __init__(self) -> None:
        self._taken: set[str] = set()

    def both(self, name: str) -> str:
        """`name` as it is when it is short, else SHORT|name."""
        if SHORT.fullmatch(name):
            short = name.upper()
        else:
            stem, _, ending = name.rpartition(".") if "." in name else (name, "", "")
            plain = re.sub(r"[^A-Z0-9_]", "", stem.upper())[:5]
            ending = "." + ending.upper()[:3] if ending else ""
            short = next(candidate for candidate in (f"{plain}~{i}{ending}" for i in range(1, 100))
                         if candidate not in self._taken)
        self._taken.add(short)
        return name if SHORT.fullmatch(name) else f"{short}|{name}"


class FolderTable:
    """Adds a folder and all in it to an element of an installer's source."""

    def __init__(self, root: Path, guid: Callable[[str], uuid.UUID]) -> None:
        self._root = root
        self._guid = guid
        self.components: dict[str, ET.Element] = {}  # by the path of their file

    def add(self, parent: ET.Element, folder: Path | None = None) -> None:
        names = ShortNames()
        # Short names first: they are taken as they are.
        entries = sorted((folder or self._root).iterdir(),
                         key=lambda path: (not SHORT.fullmatch(path.name), path.name))
        for path in entries:
            relative = path.relative_to(self._root)
            if path.is_dir():
                directory = ET.SubElement(parent, "Directory", Id=identifier("d.", relative),
                                          Name=names.both(path.name))
                self.add(directory, path)
            else:
                self._add_file(parent, relative, names.both(path.name))

    def _add_file(self, parent: ET.Element, path: Path, name: str) -> None:
        component = ET.SubElement(parent, "Component", Id=identifier("c.", path), Win64="yes",
                                  Guid=f"{{{self._guid(path.as_posix())}}}".upper())
        # Sources are found from the folder that wixl runs in.
        ET.SubElement(component, "File", Id=identifier("f.", path), Name=name,
                      Source=path.as_posix(), KeyPath="yes")
        self.components[path.as_posix()] = component
