"""A model that was read from a file."""
from __future__ import annotations

import html
import io
import os
import stat
import sys
import tempfile
from typing import IO, TYPE_CHECKING, Any, Optional, Sequence, TypeVar, Union

import numpy as np

from ._errors import ImportRefused
from ._library import ModelHandle
from ._loads import Loads
from ._page import write_page
from ._row import Row
from ._table import Table
from ._tables import FindingCounts, Findings, Messages, Modal, ModelTables, Settings

if TYPE_CHECKING:
    Source = Union[str, os.PathLike[str], bytes, bytearray, memoryview, IO[bytes]]

_Table = TypeVar("_Table", bound=Table)


# Rows of a model that is shown in a notebook as soon as it is named.
_MOST_SHOWN = 300_000


class Model(ModelTables):
    """What a model file holds. Tables are read when they are first asked for, and stay."""

    def __init__(self, handle: ModelHandle, source: str, is_checked: bool,
                 path: Optional[str] = None) -> None:
        self._handle = handle
        self._path = path  # where it can be read again
        self._is_checked = is_checked
        self._tables: dict[Any, Any] = {}
        #: The file, as it was named.
        self.source = source

    def _table(self, kind: type[_Table]) -> _Table:
        if kind not in self._tables:
            table = kind(self._handle.table(kind.layout.number))
            self._tables.setdefault(kind, table)  # another thread may have been faster
        made: _Table = self._tables[kind]
        return made

    @property
    def settings(self) -> Row:
        """Tolerance, working space, rigid in bending or not, version, service pack."""
        return self._table(Settings)[0]

    @property
    def version(self) -> str:
        """The version of the file, as it is written."""
        return str(self.settings["version"])

    @property
    def modal(self) -> Row:
        """The parameters of the modal analysis."""
        return self._table(Modal)[0]

    @property
    def messages(self) -> list[str]:
        """What the import says about load cases."""
        return list(self._table(Messages)["text"])

    @property
    def findings(self) -> Findings:
        """What is wrong with the file and the model in it; for models read with check=True."""
        if not self._is_checked:
            raise ValueError("nothing was looked for: read the file with check=True")
        findings = self._table(Findings)
        counts = self._table(FindingCounts)
        findings._counts = dict(zip(counts["code"].tolist(), counts["count"].tolist()))
        return findings

    def loads(self, case: Optional[int] = None) -> Loads:
        """The loads of the load case with that number, or all.

        Raises KeyError for a number that is no case, or that of a combination without loads.
        """
        return Loads(self, case)

    def export(self, path: Union[str, os.PathLike[str]], kind: Optional[str] = None, *,
               case: Union[int, Sequence[int]] = (), group: Union[str, Sequence[str]] = (),
               force: bool = False) -> str:
        """Writes the model in a form that other programs read, as `tamur export` does.

        `kind` is "csv", "xlsx", "saf", "vtu", "vtm" or "glb"; without it the name tells. `case` and
        `group` take only the loads of these cases and these groups. Returns what the output lacks,
        has in part, and assumes. Raises OSError when it cannot be written, or is there already and
        `force` is not given.
        """
        cases = [int(case)] if isinstance(case, (int, np.integer)) else list(case)
        groups = [group] if isinstance(group, str) else list(group)
        return self._checked().export(self.source, os.fsdecode(path), kind, cases, groups, force)

    def view(self, path: Union[str, os.PathLike[str], None] = None, *, force: bool = False) -> str:
        """The model as one page for any browser, without a network: what `tamur view` writes.

        Returns the page. With `path` it is written there too; what is there and is no such page is
        replaced with `force` only.
        """
        page = self._checked().view(os.path.basename(self.source))
        if path is not None:
            write_page(page, os.fsdecode(path), force)
        return page

    def _checked(self) -> ModelHandle:
        """What knows the lines of the file and the findings: both are part of what is written."""
        if self._is_checked:
            return self._handle
        if self._path is None:
            raise ValueError("what is not read from a path is read with check=True to be exported "
                             "or viewed")
        return ModelHandle(self._path, True, self.source)

    def __reduce__(self) -> Any:
        raise TypeError("a model does not travel between processes: read its file there")

    def _summary(self) -> list[tuple[str, int]]:
        names = [name for name, value in vars(ModelTables).items() if isinstance(value, property)]
        return [(name, len(getattr(self, name))) for name in names if len(getattr(self, name))]

    def __repr__(self) -> str:
        counts = ", ".join(f"{count} {name}" for name, count in self._summary())
        return f"<Model {self.source!r}, version {self.version}: {counts or 'nothing'}>"

    def _repr_html_(self) -> str:
        rows = "".join(f"<tr><td>{name}</td><td>{count}</td></tr>"
                       for name, count in self._summary())
        title = html.escape(f"{self.source}, version {self.version}")
        table = f"<table><caption>{title}</caption><tbody>{rows}</tbody></table>"
        if not self._is_checked and self._path is None:
            return table
        if sum(count for _, count in self._summary()) > _MOST_SHOWN:
            return table
        return (f'<iframe title="{title}" srcdoc="{html.escape(self.view())}" '
                f'style="width:100%;height:36em;border:0"></iframe>{table}')


def read(source: Source, *, check: bool = False) -> Model:
    """Reads a model file: a path, the bytes of a file, or a file that is open in binary mode.

    With `check` everything is looked for that is wrong with it: `findings` of the model. Raises
    ImportRefused with the cause when it is no model file or cannot be read.
    """
    if not isinstance(check, bool):
        raise TypeError(f"check is True or False, not {type(check).__name__}")
    if isinstance(source, (str, os.PathLike)):
        path = os.fsdecode(source)
        if "\0" in path:
            raise ValueError("a path with a NUL in it")
        if _is_plain(path):
            return Model(ModelHandle(path, check, path), path, check, path)
        # The import would open another file, or none.
        return _read_bytes(_content_of(path), check, path)
    if isinstance(source, (bytes, bytearray, memoryview)):
        return _read_bytes(source, check, "<bytes>")
    if hasattr(source, "read"):
        content = None if isinstance(source, io.TextIOBase) else source.read()
        if not isinstance(content, (bytes, bytearray, memoryview)):
            raise TypeError("a model file is opened in binary mode: open(name, 'rb')")
        return _read_bytes(content, check, str(getattr(source, "name", "<file>")))
    raise TypeError("a model file is a path, bytes, or an open file, not "
                    + type(source).__name__)


def _is_plain(path: str) -> bool:
    """Whether the name survives the way to the system: as UTF-8, on Windows in the code page."""
    try:
        path.encode("mbcs" if sys.platform == "win32" else "utf-8")
        return True
    except UnicodeEncodeError:
        return False


def _content_of(path: str) -> bytes:
    """Refused as the library refuses other paths."""
    try:
        if not stat.S_ISREG(os.stat(path).st_mode):  # before it is opened: a pipe would wait
            raise ImportRefused(path, "TMR011", "this is a folder, a device or a pipe, not a file")
        file = open(path, "rb")
    except OSError as error:
        raise ImportRefused(path, "TMR001",
                            f"the file cannot be opened: {error.strerror}") from error
    with file:
        return file.read()


def _read_bytes(content: Union[bytes, bytearray, memoryview], check: bool, source: str) -> Model:
    if isinstance(content, memoryview) and not content.c_contiguous:
        content = content.tobytes()
    # The import reads files, and reads them twice.
    descriptor, path = tempfile.mkstemp(".txt", "tamur-")
    try:
        with os.fdopen(descriptor, "wb") as file:
            file.write(content)
        return Model(ModelHandle(path, check, source), source, check)
    finally:
        os.remove(path)
