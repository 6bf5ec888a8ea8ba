"""Pages in files."""
from __future__ import annotations

import os
import tempfile


def write_page(page: str, path: str, force: bool) -> None:
    """Whole or not at all; replaces another page, and anything else with `force`."""
    content = page.encode("utf-8")
    if not force and os.path.lexists(path) and not _is_page(path, content):
        raise FileExistsError(f"{path}: it is there already and no page; force=True replaces it")
    descriptor, temporary = tempfile.mkstemp(".tmp", os.path.basename(path),
                                             os.path.dirname(path) or ".")
    try:
        with os.fdopen(descriptor, "wb") as file:
            file.write(content)
        os.chmod(temporary, 0o666 & ~_umask())
        os.replace(temporary, path)
    except BaseException:
        os.remove(temporary)
        raise


def _is_page(path: str, page: bytes) -> bool:
    if not os.path.isfile(path):
        return False
    beginning = page[:page.index(b"\n") + 1]
    with open(path, "rb") as file:
        return file.read(len(beginning)) == beginning


def _umask() -> int:
    mask = os.umask(0)
    os.umask(mask)
    return mask
