"""What was counted in one source file."""
import subprocess
import sys
from pathlib import Path


# What keeps the counts does not give its own memory back when a library is unloaded.
TEST_ARGUMENTS = ("--gtest_brief=1", "--gtest_filter=-CopiedComponent.LeavesNoMemoryBehind")


class FileCoverage:
    def __init__(self, name):
        self.lines = {}  # number: how often
        self.branches = {}  # (line, place, ..., direction): how often
        self.source = Path(name).read_text(encoding="utf-8").splitlines()

    def add_line(self, number, count):
        if self.holds_code(number):
            self.lines[number] = self.lines.get(number, 0) + count

    def add_branch(self, key, count):
        self.branches[key] = self.branches.get(key, 0) + count

    def text(self, number):
        return self.source[number - 1].strip()

    def holds_code(self, number):
        """Neither empty nor a comment nor a closing brace."""
        text = self.text(number)
        return not text.startswith("//") and any(character.isalnum() for character in text)

    def is_static_place(self, line, column):
        return "constexpr" in self.source[line - 1][:column - 1]


def name_in_sources(path):
    """The path below the project when it is a source of the component, else None."""
    try:
        name = Path(path).resolve().relative_to(Path.cwd())
    except ValueError:
        return None
    return str(name) if name.parts[0] == "src" else None


def run_tests(command, **options):
    """Tests that fail measure nothing: shows what they say, and ends."""
    run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                         errors="replace", **options)
    if run.returncode != 0:
        sys.exit(f"{run.stdout}\ncoverage: {command[0]} failed")
