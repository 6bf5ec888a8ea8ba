"""Pages in files."""
from __future__ import annotations

import os
import uuid


def write_page(page: str, path: str, force: bool) -> None:
    """Whole or not at all; replaces another page, and anything else with `force`."""
    content = page.encode("utf-8")
    if not force and os.path.lexists(path) and not _is_page(path, content):
        raise FileExistsError(f"{path}: it is there already and no page; force=True replaces it")
    temporary = f"{path}.{uuid.uuid4().hex}.tmp"
    try:
        with open(temporary, "xb") as file:
            file.write(content)
        os.replace(temporary, path)
    except BaseException:
        if os.path.lexists(temporary):
            os.remove(temporary)
        raise


def _is_page(path: str, page: bytes) -> bool:
    if not os.path.isfile(path):
        return False
    beginning = page[:page.index(b"\n") + 1]
    with open(path, "rb") as file:
        return file.read(len(beginning)) == beginning
