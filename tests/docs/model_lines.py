"""Lines of model files that pages show."""
import json
import re
import subprocess
from pathlib import Path

from pages import ROOT

FIXTURES = ROOT / "tests" / "host" / "fixtures"
# What lines that pages show may refer to: materials, sections and releases, and cases 1, 2 and 10.
AROUND = {
    "Groupes": [],
    "Materiaux": ["BETON 3.1e10 0.2 25000 1e-5 0.04"],
    "Geometries": ["R20*30 6e-2 5e-2 5e-2 5e-4 4.5e-4 2e-4 3e-3 3e-3 2e-3 3e-3 2e-3 0 F 0"],
    "Attaches": ["ENC 0 Encastrement - -"],
    "Cas": ["1 Permanentes 1 G 0", "2 Exploitation 1 Q 0", "10 Combinaison 2 ELU 0"],
    "TAB_PARAM_CAS": [],
    "Elements": [],
}
SETTINGS = ["#Version", "12.1", "#Espace", "3", "#Tolerance", "0.001", "#Rigide", "0"]
SIGNS = {"·": " ", "<SUB>": "\x1a", "<NUL>": "\0", "\\uFEFF": "\ufeff"}


class ModelError(Exception):
    pass


def texts_of(path: Path) -> list[str]:
    """In each of the encodings that fixtures are about."""
    content = path.read_bytes()
    return [content.decode(encoding, "replace")
            for encoding in ("utf-8", "cp1252", "cp850", "utf-16")]


def pattern_of(line: str) -> re.Pattern:
    for sign, character in SIGNS.items():
        line = line.replace(sign, character)
    return re.compile(r"\s*" + ".*".join(map(re.escape, line.split("…"))) + r"\s*")


def holds(text: str, patterns: list[re.Pattern]) -> bool:
    """Whether the lines are in the text, in that order."""
    lines = iter(re.split(r"\n|\r(?!\n)", text))
    return all(any(pattern.fullmatch(line) for line in lines) for pattern in patterns)


def check_fixture_lines(code: str, lines: str) -> None:
    fixtures = sorted(FIXTURES.glob(f"{code}-*.txt"))
    patterns = [pattern_of(line) for line in lines.splitlines() if line != "..."]
    if not any(holds(text, patterns) for path in fixtures for text in texts_of(path)):
        raise ModelError(f"no fixture of {code} has these lines")


def check_section_lines(section: str, lines: str, folder: Path) -> None:
    """The import reads them whole, and refers to what is there."""
    if section not in AROUND:
        raise ModelError(f"there is no section {section} here")
    model = list(SETTINGS)
    for name, others in AROUND.items():
        model += [f"#{name}", *others]
        if name == section:
            first = len(model) + 1
            model += lines.splitlines()
            last = len(model)
    path = folder / "block.txt"
    path.write_bytes("\n".join([*model, ""]).encode("cp1252"))
    run = subprocess.run([ROOT / "build/native/tamur", "check", "--format", "json", "--all", path],
                         capture_output=True, text=True)
    file, = json.loads(run.stdout)["files"]
    # What is odd about the structure, of which this is a line, is not asked.
    found = [finding["text"] for finding in file["findings"]
             if first <= finding.get("line", 0) <= last and finding["code"] < "TMR4"]
    if found or not file["imported"]:
        raise ModelError(f"the import of these lines: {found}")
