"""The native build: clang's source-based coverage, merged over all programs and instantiations."""
import json
import os
import shutil
import subprocess
from collections import defaultdict

from .file_coverage import TEST_ARGUMENTS, FileCoverage, name_in_sources, run_tests

PROGRAMS = ("tests/unit_tests", "tests/conformance_tests", "tests/tool/tool_tests",
            "tests/failures/failure_tests")
# Also holds the component's code; run by the tests.
RUN_BY_THEM = ("tamur", "libTAMURReader.so")
# Kinds of regions.
SKIPPED = 2
GAP = 3


def measure(build):
    profiles = build.resolve() / "profiles"
    shutil.rmtree(profiles, ignore_errors=True)
    profiles.mkdir(parents=True)
    for program in PROGRAMS:
        run_program(build / program, profiles)
    return read_export(export(build, [*PROGRAMS, *RUN_BY_THEM], profiles))


def run_program(program, profiles):
    # One file for each binary (%m), mapped into memory (%c): it keeps what a process counted that
    # is killed, as those of the death tests are, and is shared with the processes it forks.
    pattern = profiles / f"{program.name}-%m%c.profraw"
    run_tests([str(program.resolve()), *TEST_ARGUMENTS],
              env={**os.environ, "LLVM_PROFILE_FILE": str(pattern)})


def export(build, binaries, profiles):
    merged = profiles / "merged.profdata"
    subprocess.run(["llvm-profdata", "merge", "-sparse", *map(str, profiles.glob("*.profraw")),
                    "-o", str(merged)], check=True)
    first, *others = [str(build / binary) for binary in binaries]
    objects = [argument for other in others for argument in ("-object", other)]
    result = subprocess.run(["llvm-cov", "export", "-instr-profile", str(merged), first, *objects],
                            check=True, stdout=subprocess.PIPE)
    return json.loads(result.stdout)["data"][0]


def read_export(data):
    """By functions: a template's instantiations are functions in the same lines."""
    measured = {}
    for function in data["functions"]:
        for place, path in enumerate(function["filenames"]):
            name = name_in_sources(path)
            if name is None:
                continue
            coverage = measured.setdefault(name, FileCoverage(name))
            regions = [region for region in function["regions"] if region[5] == place]
            for number, count in line_counts(regions):
                coverage.add_line(number, count)
            for branch in function.get("branches", ()):
                if branch[6] == place:
                    add_branch(coverage, branch)
    for coverage in measured.values():
        leave_out_static_branches(coverage)
    return measured


def add_branch(coverage, branch):
    *place, taken, not_taken, _, _, _ = branch
    coverage.add_branch((*place, "false"), not_taken)
    coverage.add_branch((*place, "true"), taken)


def leave_out_static_branches(coverage):
    """What the compiler decides has no counts, in no instantiation."""
    for key in [key for key, count in coverage.branches.items() if count == 0]:
        other = (*key[:-1], "true" if key[-1] == "false" else "false")
        if coverage.branches.get(other, 0) == 0 and coverage.is_static_place(*key[:2]):
            del coverage.branches[key]


def line_counts(regions):
    """Lines of one function, and how often: as llvm-cov counts them.

    A region is (line, column, end line, end column, count, file, expanded file, kind). A line has
    the highest count of what begins in it and of what it begins in.
    """
    code = [region for region in regions if region[7] != SKIPPED]
    begins = defaultdict(list)
    for region in code:
        if region[7] != GAP:
            begins[region[0]].append(region[4])
    for number in range(min((region[0] for region in code), default=0),
                        max((region[2] for region in code), default=-1) + 1):
        around = [region for region in code
                  if (region[0], region[1]) <= (number, 1) < (region[2], region[3])]
        counts = begins[number]
        if around:
            counts.append(innermost(around)[4])
        if counts:
            yield number, max(counts)


def innermost(regions):
    return max(regions, key=lambda region: (region[0], region[1], -region[2], -region[3]))
