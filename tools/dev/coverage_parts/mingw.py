"""What only Windows compiles: GCC's counters, written by the tests under Wine."""
import json
import subprocess

from .file_coverage import TEST_ARGUMENTS, FileCoverage, name_in_sources, run_tests

PROGRAMS = ("tests/unit_tests.exe", "tests/conformance_tests.exe",
            "tests/windows/windows_tests.exe", "tests/failures/failure_tests.exe")
GCOV = "x86_64-w64-mingw32-gcov-posix"


def measure(build):
    for counters in build.rglob("*.gcda"):
        counters.unlink()
    arguments = " ".join(TEST_ARGUMENTS)
    run = " && ".join(f"timeout 600 wine ./{program} {arguments}" for program in PROGRAMS)
    # From a folder of the build: its drive is the one the counters' absolute paths then lie on.
    run_tests(["tools/dev/wine_session", "bash", "-c", f"cd {build} && {run}"])
    return read_counters(build)


def read_counters(build):
    measured = {}
    for notes in sorted(build.glob("src/CMakeFiles/*.dir/**/windows/*.gcno")):
        result = subprocess.run([GCOV, "--json-format", "--stdout", "--branch-probabilities",
                                 str(notes)], check=True, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL)
        for file in json.loads(result.stdout)["files"]:
            add_file(measured, file)
    return measured


def add_file(measured, file):
    name = name_in_sources(file["file"])
    if name is None or "/windows/" not in name:
        return
    coverage = measured.setdefault(name, FileCoverage(name))
    for line in file["lines"]:
        coverage.add_line(line["line_number"], line["count"])
        if coverage.holds_code(line["line_number"]):
            add_branches(coverage, line)


def add_branches(coverage, line):
    """Of the branches only those of the source: none where something is thrown or caught."""
    branches = line["branches"]
    is_catch = "catch (" in coverage.text(line["line_number"])
    if is_catch or any(branch["throw"] for branch in branches):
        return
    for place, branch in enumerate(branches):
        coverage.add_branch((line["line_number"], place, "taken"), branch["count"])
