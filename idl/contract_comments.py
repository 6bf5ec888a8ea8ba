"""Reads what the contract, idl/TAMURReader.idl, says in its comments, for pages about it.

A comment above a declaration is about all of it, and one after a field or a value about that; it
may go on below in the same column. One that begins with "Each" is about all methods up to an empty
line.
"""
import re
from dataclasses import dataclass, field

DECLARATION = re.compile(r"typedef (?:struct|enum) (\w+)|interface (\w+) :|coclass (\w+)")
METHOD = re.compile(r"HRESULT (\w+)\(")
MEMBER = re.compile(r"(\w+)(?:\[\d+\])?(?: = \d+)?[;,]?$")
TABLE = re.compile(r"Table \w+: ")
RULER = "-" * 16


@dataclass
class Comments:
    introduction: list[str]                                      # paragraphs and lists, of the file
    accessors: str = ""                                          # what holds for all of them
    classes: str = ""
    of: dict[str, str] = field(default_factory=dict)             # by declaration
    of_member: dict[tuple[str, str], str] = field(default_factory=dict)


def _introduction(lines: list[str]) -> list[str]:
    """The lines of comment that the file begins with, without their slashes."""
    leading = []
    for line in lines:
        if not line.startswith("//"):
            break
        leading.append(line.removeprefix("//").removeprefix(" "))
    return leading


class _Reader:
    def __init__(self, lines: list[str]) -> None:
        self.found = Comments(_introduction(lines))
        self.above: list[str] = []   # lines of comment, not yet anybody's
        self.declaration = ""
        self.member = ""
        self.column = -1             # where the comment after that member is
        self.ruler = ""
        self.each = ""
        for line in lines[len(self.found.introduction):]:
            self._read(line)

    def _read(self, line: str) -> None:
        code, _, comment = (part.strip() for part in line.partition("//"))
        column = line.find("//")
        if not code and comment:
            self._read_comment(comment, column)
        elif not code:
            self._end_of_paragraph()
        else:
            self._read_code(code, comment)
            self.column = column

    def _read_comment(self, comment: str, column: int) -> None:
        if comment.startswith(RULER):
            self.ruler = comment.strip("- ")
            self.above = []
        elif self.member and column == self.column:
            self.found.of_member[self.declaration, self.member] += " " + comment
        else:
            self.above.append(comment)

    def _end_of_paragraph(self) -> None:
        text = " ".join(self.above)
        if self.ruler in ("accessors", "coclasses") and text and not self.declaration:
            setattr(self.found, self.ruler.removeprefix("co"), text)
        self.above = []
        self.each = ""

    def _take(self) -> str:
        """What was above, without the line that contract.py reads."""
        text = " ".join(part for part in self.above if not TABLE.match(part))
        self.above = []
        return text

    def _read_code(self, code: str, comment: str) -> None:
        if match := DECLARATION.search(code):
            self.declaration = match[1] or match[2] or match[3]
            self.found.of[self.declaration] = self._take()
            self.member = ""
        elif code.startswith("}"):
            self.declaration = self.member = ""
        elif match := METHOD.match(code) or MEMBER.search(code):
            self.member = match[1]
            text = comment or self._take() or self.each
            self.each = text if text.startswith("Each ") else ""
            if self.declaration and text:
                self.found.of_member[self.declaration, self.member] = text


def read_comments(path: str) -> Comments:
    with open(path, encoding="utf-8") as file:
        return _Reader(file.read().splitlines()).found
