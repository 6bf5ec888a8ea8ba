"""The pages that people read, their code blocks and their headings, for the tests of them."""
import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "site"))
from slugs import slug_of  # noqa: E402

MARK = re.compile(r"<!-- code: (.*?) -->\s*", re.S)
KEYS = ("not run: ", "tested by ", "quoted from ", "output of ", "some lines", "file ", "in ",
        "for ", "within ")
FENCE = re.compile(r"( *)(`{3,})([\w+#-]*)\s*")
SNIPPET = re.compile(r'--8<-- "([^"]+)"')


@dataclass
class Block:
    page: str           # from the root of the project
    line: int
    language: str
    code: str
    heading: str
    marks: dict[str, str] = field(default_factory=dict)
    before: "Block | None" = None    # the one that this follows at once, without text between

    @property
    def place(self) -> str:
        return f"{self.page}:{self.line}"

    @property
    def snippet(self) -> str:
        """The file that is shown, where the block has nothing but such a line."""
        match = SNIPPET.fullmatch(self.code.strip())
        return match[1] if match else ""


class PageError(Exception):
    pass


def pages() -> list[str]:
    found = [ROOT / "README.md", ROOT / "CHANGELOG.md", ROOT / "python" / "README.md"]
    found += sorted((ROOT / "docs").rglob("*.md"))
    return [str(path.relative_to(ROOT)) for path in found]


def text_of(page: str) -> str:
    return (ROOT / page).read_text(encoding="utf-8")


def marks_of(text: str, place: str) -> dict[str, str]:
    marks = {}
    for part in re.split(f"; (?={'|'.join(KEYS)})", " ".join(text.split())):
        key = next((key for key in KEYS if part.startswith(key)), None)
        if key is None:
            raise PageError(f"{place}: \"{part}\" begins with none of: {', '.join(KEYS)}")
        marks[key.strip(" :")] = part.removeprefix(key)
    return marks


class _Reader:
    def __init__(self, page: str) -> None:
        self.page = page
        self.lines = text_of(page).splitlines()
        self.blocks: list[Block] = []
        self.headings: list[str] = []
        self.prose: list[str] = []      # the text, with nothing in the place of code
        self.between = ""               # since the last block
        number = 0
        while number < len(self.lines):
            number = self._read(number)

    def _read(self, number: int) -> int:
        line = self.lines[number]
        if match := FENCE.fullmatch(line):
            return self._read_block(number, match)
        is_indented = line.startswith("    ") and not self.lines[number - 1].strip()
        if is_indented and not self._in_list(number):
            raise PageError(f"{self.page}:{number + 1}: an indented block: say its language, "
                            "between ```language and ```")
        if line.startswith("#"):
            self.headings.append(line.lstrip("#").strip())
        self.prose.append(line)
        self.between += line + "\n"
        return number + 1

    def _in_list(self, number: int) -> bool:
        for line in reversed(self.lines[:number]):
            if line.strip():
                return re.match(r"\s*([-*]|\d+\.) ", line) is not None or line.startswith("    ")
        return False

    def _read_block(self, number: int, fence: re.Match) -> int:
        end = number + 1
        while end < len(self.lines) and self.lines[end].strip() != fence[2]:
            end += 1
        if end == len(self.lines):
            raise PageError(f"{self.page}:{number + 1}: this block has no end")
        code = "\n".join(line.removeprefix(fence[1]) for line in self.lines[number + 1:end]) + "\n"
        heading = self.headings[-1] if self.headings else ""
        block = Block(self.page, number + 1, fence[3], code, heading)
        text = self.between
        if re.search(MARK.pattern + r"\Z", text, re.S):
            last = list(MARK.finditer(text))[-1]
            block.marks = marks_of(last[1], block.place)
            text = text[:last.start()]
        elif MARK.search(text):
            raise PageError(f"{block.place}: the comment on code is not directly before it")
        if self.blocks and not text.strip():
            block.before = self.blocks[-1]
        self.blocks.append(block)
        self.prose += [""] * (end + 1 - number)
        self.between = ""
        return end + 1


def blocks_of(page: str) -> list[Block]:
    return _Reader(page).blocks


def prose_of(page: str) -> str:
    return "\n".join(_Reader(page).prose)


def anchors_of(page: str) -> set[str]:
    """As code hosts make them; of equal headings the second gets a -1."""
    found: set[str] = set()
    for heading in _Reader(page).headings:
        slug = slug_of(heading)
        number = 0
        while (f"{slug}-{number}" if number else slug) in found:
            number += 1
        found.add(f"{slug}-{number}" if number else slug)
    return found
