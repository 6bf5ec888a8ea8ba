"""What goes wrong with model files."""
from __future__ import annotations


class ImportRefused(Exception):
    """A file was not imported.

    `source` is the file, `code` that of the finding that says why ("TMR001"), `cause` its text.
    """

    def __init__(self, source: str, code: str, cause: str) -> None:
        super().__init__(source, code, cause)
        self.source = source
        self.code = code
        self.cause = cause

    def __str__(self) -> str:
        return f"{self.source or repr('')}: {self.cause} [{self.code}]"
