"""What is asked of a code block, by its language: see check_code."""
import json
import math
import os
import re
import shutil
import subprocess
import tempfile
import tomllib
import xml.etree.ElementTree as ElementTree
from functools import cache
from pathlib import Path

from model_lines import ModelError, check_fixture_lines, check_section_lines
from pages import ROOT, Block

NATIVE = ROOT / "build" / "native"
GENERATED = NATIVE / "generated"
INCLUDES = [f"-I{ROOT / 'include'}", f"-isystem{GENERATED}"]
COMPAT = f"-isystem{ROOT / 'include' / 'compat'}"
ENVIRONMENT = {**os.environ, "LC_ALL": "C.UTF-8", "NO_COLOR": "1",
               "PATH": f"{NATIVE}:{os.environ['PATH']}", "LD_LIBRARY_PATH": str(NATIVE),
               "PYTHONDONTWRITEBYTECODE": "1"}
OPTION = re.compile(r"(?<![\w-])--?[a-zA-Z][\w-]*")
HERE = Path(__file__).resolve().parent
END = "-- end of a command --"


class CheckError(Exception):
    pass


def run(command, folder, **options):
    return subprocess.run(command, cwd=folder, env=ENVIRONMENT, text=True, timeout=120,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, **options)


def must(command, folder) -> str:
    result = run(command, folder)
    if result.returncode != 0:
        raise CheckError(f"{' '.join(map(str, command[:1]))}: {result.stdout.strip()}")
    return result.stdout


class Page:
    """The blocks of a page, in their folder."""

    def __init__(self, page: str) -> None:
        self.page = page
        self.unused: dict[str, str] = {}    # files that no block has named yet, and their place

    def __enter__(self) -> "Page":
        self._temporary = tempfile.TemporaryDirectory(prefix="tamur-docs-")
        self.folder = Path(self._temporary.name)
        for path in ROOT.iterdir():
            if path.name != ".git":
                (self.folder / path.name).symlink_to(path)
        (self.folder / "export").mkdir()
        for sample in (ROOT / "samples").glob("*.txt"):
            shutil.copy(sample, self.folder)
            shutil.copy(sample, self.folder / "export")
        return self

    def __exit__(self, kind, *_) -> None:
        self._temporary.cleanup()
        if kind is None and self.unused:
            name, place = next(iter(self.unused.items()))
            raise CheckError(f"{place}: no block uses the file {name}")

    def check(self, block: Block) -> None:
        self.unused = {name: place for name, place in self.unused.items()
                       if name not in block.code}
        if not block.language:
            raise CheckError("this block has no language")
        marks = block.marks
        if block.snippet:
            check_snippet(block.snippet)
        elif "file" in marks:
            (self.folder / marks["file"]).write_text(block.code, encoding="utf-8")
            self.unused[marks["file"]] = block.place
        elif "tested by" in marks:
            check_tested(marks["tested by"], block)
        elif "quoted from" in marks:
            check_quoted(marks["quoted from"], block.code)
        elif "output of" in marks:
            self.check_output(marks["output of"], block)
        elif "not run" in marks:
            check_usage(block.code)
        else:
            check_by_language(block, self.folder)

    def check_output(self, command: str, block: Block) -> None:
        output = run(["bash", "-c", command], self.folder).stdout
        if block.language == "json":
            if not is_part(json.loads(block.code), json.loads(output)):
                raise CheckError(f"no part of what {command} writes")
        else:
            compare(shown_lines(block, block.code.splitlines()), output.splitlines())


# ---------------------------------------------------------------- what holds for all languages

def check_snippet(path: str) -> None:
    """A file that is shown whole is an example that a build or this test knows."""
    name = Path(path).name
    if not (ROOT / path).is_file():
        raise CheckError(f"there is no {path}")
    if path.endswith(".cs"):
        compile_csharp((ROOT / path).read_text(encoding="utf-8"))
    elif not any(name in file.read_text(encoding="utf-8")
                 for file in (ROOT / "examples").rglob("CMakeLists.txt")):
        raise CheckError(f"no CMakeLists.txt of examples/ tests {path}")


def check_tested(test: str, block: Block) -> None:
    path = ROOT / test
    if not path.is_file() or Path(block.page).name not in path.read_text(encoding="utf-8"):
        raise CheckError(f"{test} does not name this page")


def check_quoted(path: str, code: str) -> None:
    lines = [line.strip() for line in (ROOT / path).read_text(encoding="utf-8").splitlines()]
    compare(["..."] + [line.strip() for line in code.splitlines()] + ["..."], lines)


def compare(expected: list[str], actual: list[str]) -> None:
    """Line by line; `...` stands for any number of lines."""
    place = 0
    skips = False
    for line in expected:
        if line.strip() == "...":
            skips = True
            continue
        if skips:
            while place < len(actual) and actual[place].rstrip() != line.rstrip():
                place += 1
        if place == len(actual) or actual[place].rstrip() != line.rstrip():
            found = actual[place] if place < len(actual) else "the end"
            raise CheckError(f"expected \"{line}\", found \"{found}\"")
        place += 1
        skips = False
    if not skips and place < len(actual):
        raise CheckError(f"the output goes on: \"{actual[place]}\"")


def shown_lines(block: Block, lines: list[str]) -> list[str]:
    if "some lines" not in block.marks:
        return lines
    return ["...", *(part for line in lines for part in (line, "..."))]


def is_part(said, actual) -> bool:
    """Numbers may be shown with fewer digits."""
    if said == "..." and isinstance(actual, str):
        return True
    if isinstance(said, dict) and isinstance(actual, dict):
        return all(key in actual and is_part(value, actual[key]) for key, value in said.items())
    if isinstance(said, list) and isinstance(actual, list):
        return all(any(is_part(one, other) for other in actual) for one in said)
    if isinstance(said, float) and isinstance(actual, float):
        return math.isclose(said, actual, rel_tol=1e-6, abs_tol=1e-6)
    return said == actual


def check_by_language(block: Block, folder: Path) -> None:
    checker = CHECKERS.get(block.language)
    if checker is None:
        raise CheckError(f"nothing checks {block.language}: mark it, or see check_code")
    try:
        checker(block, folder)
    except (ValueError, SyntaxError, ElementTree.ParseError, ModelError) as error:
        raise CheckError(str(error)) from error


# ---------------------------------------------------------------- compiled

def check_cpp(block: Block, folder: Path) -> None:
    name = block.marks.get("within", "")
    code = block.code
    if name:
        code = (HERE / name).read_text(encoding="utf-8").replace("BLOCK\n", code, 1)
    extension, standard = ("c", "-std=c17") if block.language == "c" else ("cpp", "-std=c++20")
    source = folder / f"block.{extension}"
    source.write_text(code, encoding="utf-8")
    options = [standard, "-Wall", "-Wextra", *INCLUDES]
    if "for" in block.marks:
        must(["x86_64-w64-mingw32-g++", *options, "-fsyntax-only", source.name], folder)
        return
    options = ["g++" if extension == "cpp" else "gcc", *options, COMPAT, source.name]
    if not re.search(r"\bint main\(", code):
        must([*options, "-fsyntax-only"], folder)
        return
    must([*options, "-o", "program", f"-L{NATIVE}", "-lTAMURReader", "-ltamur"], folder)
    must(["./program"], folder)


def compile_csharp(code: str) -> None:
    with tempfile.TemporaryDirectory() as name:
        Path(name, "block.cs").write_text(code, encoding="utf-8")
        must(["mcs", "-warnaserror", "-platform:x64", "-target:library", "-out:block.dll",
              "block.cs", str(GENERATED / "bindings" / "TAMURReader.cs")], name)


# What stands here for the compilers that are named on Windows.
CROSS = {"g++": ["x86_64-w64-mingw32-g++"], "gcc": ["x86_64-w64-mingw32-gcc"],
         "csc": ["mcs", "-warnaserror"]}


def windows_package(folder: Path) -> Path:
    """A folder with what the commands for Windows name, where the package has it."""
    package = folder / "package"
    if not package.exists():
        shutil.copytree(ROOT / "examples", package / "examples")
        shutil.copytree(ROOT / "include" / "tamur", package / "include" / "tamur")
        for source, target in (("TAMURReader.h", "include"), ("TAMURReader_i.c", "include"),
                               ("tamur/fields.h", "include/tamur"),
                               ("tamur/tables.h", "include/tamur"),
                               ("bindings/TAMURReader.cs", "examples/csharp")):
            shutil.copy(GENERATED / source, package / target)
    return package


def check_bat(block: Block, folder: Path) -> None:
    check_usage(block.code)
    package = windows_package(folder)
    for line in block.code.replace("^\n", " ").splitlines():
        command, *arguments = line.replace("\\", "/").split()
        if command in CROSS:
            must([*CROSS[command], *arguments], package)
        elif not (package / command).is_file() and not command.startswith("tamur"):
            raise CheckError(f"there is no {command} in the folder")


def check_cmake(block: Block, folder: Path) -> None:
    project = folder / "cmake-block"
    project.mkdir(exist_ok=True)
    (project / "CMakeLists.txt").write_text(block.code, encoding="utf-8")
    must(["cmake", "-S", project.name, "-B", f"{project.name}/build"], folder)


def check_lua(block: Block, folder: Path) -> None:
    (folder / "block.lua").write_text(block.code, encoding="utf-8")
    must(["luajit", "-bl", "block.lua"], folder)


# ---------------------------------------------------------------- run

def session(commands: list[str], folder: Path) -> list[tuple[str, int]]:
    """What each of the commands prints and answers, in one shell."""
    script = "".join(f"{command}\necho \"{END}$?\"\n" for command in commands)
    output = run(["bash", "-c", script], folder).stdout
    parts = re.split(rf"{END}(\d+)\n", output)
    return list(zip(parts[0::2], map(int, parts[1::2])))


def check_status(command: str, status: int, output: str) -> None:
    """1 is an answer of `tamur check` and `tamur diff`."""
    if status > 1 or status == 1 and not re.search(r"\btamur (check|diff)\b", command):
        raise CheckError(f"{command}: exit code {status}: {output.strip()}")


def check_console(block: Block, folder: Path) -> None:
    commands: list[str] = []
    expected: list[list[str]] = []
    for line in block.code.splitlines():
        if line.startswith("$ "):
            commands.append(line[2:])
            expected.append([])
        elif commands and commands[-1].endswith("\\"):
            commands[-1] += "\n" + line.removeprefix("> ")
        elif commands:
            expected[-1].append(line)
        else:
            raise CheckError("a console begins with \"$ \" and a command")
    for command, lines, (output, status) in zip(commands, expected, session(commands, folder)):
        check_status(command, status, output)
        if lines or output.strip():
            compare(shown_lines(block, lines), output.splitlines())


def check_bash(block: Block, folder: Path) -> None:
    (output, status), = session([block.code], folder)
    check_status(block.code, status, output)


def check_python(block: Block, _: Path) -> None:
    """Those of every page are run by python/tests/test_docs.py, where the package is installed."""
    compile(block.code, block.place, "exec")


# ---------------------------------------------------------------- commands and their options

@cache
def help_of(subcommand: str) -> str:
    command = [str(NATIVE / "tamur"), *([subcommand] if subcommand else []), "--help"]
    result = run(command, ROOT)
    if result.returncode != 0:
        raise CheckError(f"there is no `tamur {subcommand}`")
    return result.stdout


@cache
def commands_of_dev() -> frozenset[str]:
    text = must(["./dev", "help"], ROOT)
    return frozenset(re.findall(r"^  ([a-z][\w-]*)", text, re.M))


def check_usage(code: str) -> None:
    """The commands that it names, and the options of `tamur`, exist."""
    for line in re.sub(r"\\\n", " ", code).splitlines():
        for command in re.findall(r"(?:^|[\s;|&$])\./dev ([a-z][\w-]*)", line):
            if command not in commands_of_dev():
                raise CheckError(f"there is no ./dev {command}")
        match = re.search(r"(?:^|[\s/\\])tamur(?:\.exe)? (.*)", line)
        if not match:
            continue
        words = match[1].split("#")[0]
        subcommand = re.match(r"[a-z]+\b", words)
        known = set(OPTION.findall(help_of(subcommand[0] if subcommand else "")))
        for option in OPTION.findall(words.split(" | ")[0]):
            if option not in known:
                raise CheckError(f"`tamur {words.strip()}`: there is no option {option}")


# ---------------------------------------------------------------- read

def check_json(block: Block, _: Path) -> None:
    json.loads(block.code)


def check_yaml(block: Block, _: Path) -> None:
    run_yaml = "import sys, yaml; yaml.safe_load(sys.argv[1])"
    must(["/usr/bin/python3", "-c", run_yaml, block.code], ROOT)


def check_model(block: Block, folder: Path) -> None:
    if section := block.marks.get("in"):
        check_section_lines(section, block.code, folder)
    elif match := re.match(r"(TMR\d{3}) ", block.heading):
        check_fixture_lines(match[1], block.code)
    else:
        raise CheckError("lines of which section? <!-- code: in Elements -->")


def check_text(block: Block, _: Path) -> None:
    """What the block before it prints, which is compared where that one is run."""
    if block.before is None or block.before.language != "python":
        raise CheckError("text that is no output: mark it, with the reason")


CHECKERS = {
    "cpp": check_cpp, "c": check_cpp, "cmake": check_cmake, "lua": check_lua,
    "csharp": lambda block, _: compile_csharp(block.code),
    "console": check_console, "bash": check_bash, "python": check_python,
    "usage": lambda block, _: check_usage(block.code),
    "bat": check_bat,
    "json": check_json, "yaml": check_yaml, "toml": lambda block, _: tomllib.loads(block.code),
    "xml": lambda block, _: ElementTree.fromstring(block.code),
    "model": check_model, "text": check_text,
}
