"""A copy of the tree with a build of its own, where one fault at a time is planted."""

import os
import re
import resource
import shutil
import signal
import subprocess
import time
import xml.etree.ElementTree as xml
from dataclasses import dataclass

from .choice import project_files
from .source import plant

# Includes of the system's headers are most of what the compiler does without optimising; only
# what the long comparisons run millions of times is worth being optimised.
PREPARE_TARGETS = """
cmake_language(DEFER DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} CALL
    target_precompile_headers tamur_core PRIVATE <algorithm> <array> <atomic> <cstdint>
    <bit> <charconv> <cstring> <limits> <map> <memory> <mutex> <new> <string> <string_view>
    <type_traits> <utility> <vector> <emmintrin.h> <TAMURReader.h>)
file(GLOB compared src/import/scan/*.cpp src/import/file/model_file.cpp)
file(GLOB comparing tests/unit/*scanner*.cpp tests/unit/decimal*.cpp tests/unit/model_file*.cpp)
cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} CALL
    set_source_files_properties ${compared} ${comparing} DIRECTORY src tests
    PROPERTIES COMPILE_OPTIONS -O2 SKIP_PRECOMPILE_HEADERS ON)")
"""
LIBRARY, TOOL, UNIT = "libTAMURReader.so", "tamur", "tests/unit_tests"
CONFORMANCE, TOOL_TESTS = "tests/conformance_tests", "tests/tool/tool_tests"
FAILURES = "tests/failures/failure_tests"
# What has to be built again for the tests behind the first.
LINKED_IN = ("unit_tests", "tamur", "failure_tests")
# The long comparisons with the C++ library look at these only.
COMPARED_AT_LENGTH = ("src/import/scan/", "src/import/model_file", "src/import/find_byte")
LONG_SECONDS = 1.0
MEMORY_LIMIT, FILE_LIMIT = 8 << 30, 256 << 20


@dataclass
class Run:
    program: str
    needs: tuple  # a change in none of these cannot change the result
    arguments: tuple = ()
    only_for: tuple = ("",)
    seconds: float = 60


def limit_resources():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_LIMIT, FILE_LIMIT))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Workshop:
    def __init__(self, root, place, compilers):
        self.root, self.compilers = root, compilers
        self.tree, self.build, self.kept = place / "tree", place / "build", place / "unfaulted"
        self.temporary, self.log = place / "tmp", place / "tests.log"
        self.busy = place / "fault-planted"
        self.stamps, self.runs = {}, []

    def prepare(self):
        # A run that was killed left a build that ninja cannot tell from an unfaulted one.
        if self.busy.exists():
            shutil.rmtree(self.build, ignore_errors=True)
            self.busy.unlink()
        self._copy_tree()
        inject = self.tree.parent / "prepare_targets.cmake"
        inject.write_text(PREPARE_TARGETS)
        fast_linkers = [name for name in ("lld", "gold") if shutil.which(f"ld.{name}")]
        linker = f"-fuse-ld={fast_linkers[0]}" if fast_linkers else ""
        self._must(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja",
                    "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O0 -w",
                    f"-DCMAKE_EXE_LINKER_FLAGS={linker}",
                    f"-DCMAKE_SHARED_LINKER_FLAGS={linker}",
                    f"-DCMAKE_PROJECT_TAMURReader_INCLUDE={inject}"])
        self._must([*self._ninja(), "TAMURReader", *LINKED_IN, "conformance_tests", "tool_tests"])
        self._measure_tests()
        self._keep()

    def _must(self, command):
        done = subprocess.run(command, capture_output=True, text=True)
        if done.returncode != 0:
            output = done.stdout[-5000:] + done.stderr[-5000:]
            raise SystemExit(f"without a fault: {command[0]} fails\n{output}")

    def _copy_tree(self):
        names = project_files(self.root)
        if self.tree.exists():
            for path in [p for p in self.tree.rglob("*") if p.is_file()]:
                if str(path.relative_to(self.tree)) not in names:
                    path.unlink()
        for name in names:
            source, target = self.root / name, self.tree / name
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)

    def _measure_tests(self):
        """The tests must pass here; those of unit_tests that take long are run last."""
        report = self.tree.parent / "unit_tests.xml"
        conformance, tool = Run(CONFORMANCE, (LIBRARY,)), Run(TOOL_TESTS, (LIBRARY, TOOL))
        # The file of 4 GiB goes beyond FILE_LIMIT, and takes long.
        failures = Run(FAILURES, (FAILURES,), ("--gtest_filter=-RealFiles.OneOfMoreThan*",))
        unit = Run(UNIT, (UNIT,), (f"--gtest_output=xml:{report}",), seconds=900)
        for run in (conformance, unit, tool, failures):
            begin = time.monotonic()
            if (found := self._notices(run)) is not None:
                raise SystemExit(f"without a fault: {found}")
            run.seconds = 15 + 5 * (time.monotonic() - begin)
        cases = [(f"{case.get('classname')}.{case.get('name')}", float(case.get("time")))
                 for case in xml.parse(report).iter("testcase")]
        long = ":".join(name for name, seconds in cases if seconds > LONG_SECONDS)
        short = Run(UNIT, (UNIT,), (f"--gtest_filter=-{long}",), seconds=conformance.seconds + 15)
        longer = Run(UNIT, (UNIT,), (f"--gtest_filter={long}",), COMPARED_AT_LENGTH, unit.seconds)
        self.runs = [conformance, short, tool, failures, *([longer] if long else [])]

    def _keep(self):
        """Notes the unfaulted build; ninja goes by times, so a restored file keeps its own."""
        ignored = ("CMakeFiles/conformance_tests.dir", "googletest")
        files = [p for p in self.build.rglob("*") if p.is_file() and not p.is_symlink()
                 and not any(part in str(p) for part in ignored)]
        for path in files:
            name = path.relative_to(self.build)
            self.stamps[name] = path.stat().st_mtime_ns
            (self.kept / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(path, self.kept / name)

    def _restore_build(self):
        for name, stamp in self.stamps.items():
            path = self.build / name
            if not path.exists() or path.stat().st_mtime_ns != stamp:
                path.unlink(missing_ok=True)
                shutil.copy2(self.kept / name, path)

    def try_fault(self, fault):
        """(verdict, by whom) of the tests on one fault."""
        path = self.tree / fault.file
        original, times = path.read_text(), path.stat()
        self.busy.touch()
        path.write_text(plant(original, fault))
        try:
            return self._judge(fault)
        finally:
            path.write_text(original)
            os.utime(path, ns=(times.st_atime_ns, times.st_mtime_ns))
            self._restore_build()
            self.busy.unlink()

    def _judge(self, fault):
        if not self._builds("TAMURReader"):
            return "does not compile", ""
        # Most faults are noticed through the library: what else includes the file can wait.
        found = self._first_notice(fault, self.runs[:1], self._changed(LIBRARY))
        if found is None:
            if not self._builds(*LINKED_IN):
                return "does not compile", ""
            changed = self._changed(LIBRARY, UNIT, TOOL, FAILURES)
            if not changed:
                return "equal code", ""
            found = self._first_notice(fault, self.runs[1:], changed)
        return ("SURVIVED", "") if found is None else ("noticed", found)

    def _first_notice(self, fault, runs, changed):
        for run in runs:
            if changed.intersection(run.needs) and fault.file.startswith(run.only_for):
                if (found := self._notices(run)) is not None:
                    return found
        return None

    def _builds(self, *targets):
        return subprocess.run([*self._ninja(), *targets], capture_output=True).returncode == 0

    def _ninja(self):
        return "ninja", "-C", str(self.build), f"-j{self.compilers}"

    def _changed(self, *names):
        return {name for name in names
                if (self.build / name).read_bytes() != (self.kept / name).read_bytes()}

    def _notices(self, run):
        shutil.rmtree(self.temporary, ignore_errors=True)
        self.temporary.mkdir()
        environment = dict(os.environ, TMPDIR=str(self.temporary))
        command = [self.build / run.program, "--gtest_fail_fast", "--gtest_brief=1", *run.arguments]
        with open(self.log, "wb") as log:
            process = subprocess.Popen(command, cwd=self.temporary, env=environment,
                                       stdout=log, stderr=log, start_new_session=True,
                                       preexec_fn=limit_resources)
            try:
                code = process.wait(run.seconds)
            except subprocess.TimeoutExpired:
                code = None
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()
        if code == 0:
            return None
        name = os.path.basename(run.program)
        if code is None:
            return f"{name}: does not end"
        failed = re.search(r"\[  FAILED  \] (\S+?)(?:,| \()", self.log.read_text(errors="replace"))
        return f"{name}: {failed.group(1) if failed else f'ends with {code}'}"
