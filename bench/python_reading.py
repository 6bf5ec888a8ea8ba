"""What reading into NumPy takes, for bench/python.cpp: prints numbers by their names.

usage: python_reading.py COMPONENT SAMPLE ROUNDS FILES

COMPONENT is libTAMURReader.so; the package and the declarations of the component are on
PYTHONPATH.
"""
import gc
import hashlib
import os
import shutil
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor

import tamur
import tamur_reader
from tamur_com import Component

BARS = 100000
START = """#Version
14.1E
#Espace
2
#Tolerance
0.001
#Rigide
0
#Materiaux
C25/30 3.1e10 0.2 25000 1e-5 0.04
S235 2.1e11 0.3 78500 1.2e-5 0.02
#Geometries
IPE300 0.00538 0.0025 0.0028 2e-7 8.36e-5 6.04e-6 1e-5 5.57e-4 8.05e-5 5.57e-4 8.05e-5 0 F 0
#Attaches
Encastre 0 E a b
Rotule 7 R a b
#Elements
"""


def write_bars(path: str) -> None:
    """Bars with labels, side by side, and a node for each."""
    with open(path, "w", encoding="ascii") as file:
        file.write(START)
        for i in range(BARS):
            x, y = i % 1000 * 5.25, i // 1000 * 4.5
            file.write(f"1 {i + 1} 0 1 1  {x} {y} 3.2 N{i + 1} 0 0 0  0\n")
        for i in range(BARS):
            x, y = i % 1000 * 5.25, i // 1000 * 4.5
            file.write(f"2 {BARS + i + 1} 0 2 1  {x} {y} 3.2  {x + 5} {y} 3.2 B{i + 1} 0 0 0  "
                       f"1 2 0 0 1 {i % 2 + 1} 1 1 1 2 5 0 0 0 0 0\n")


def processor_seconds(work) -> float:
    gc.collect()
    start = time.process_time()
    kept = work()
    taken = time.process_time() - start
    del kept
    return taken


def measure_reading(component: Component, path: str, rounds: int) -> None:
    def bare():
        reader = component.create(tamur_reader.CLSID_TAMURStructureReader,
                                  tamur_reader.ITAMURStructureReader)
        with component.string(path) as file:
            reader.Import(file)
        return reader

    def into_numpy():
        bars = tamur.read(path).bars
        assert len(bars) == BARS
        return [bars[name] for name in ("identifier", "start", "end", "length", "material",
                                        "start_section", "type")]

    bare().release()
    into_numpy()
    for _ in range(rounds):
        reader = []
        import_seconds = processor_seconds(lambda: reader.append(bare()))
        reader[0].release()
        print("read", processor_seconds(into_numpy) / import_seconds)
        print("import", import_seconds)


def seconds_in(threads: int, work, items: list) -> float:
    with ThreadPoolExecutor(threads) as pool:
        start = time.perf_counter()
        for _ in pool.map(work, items):
            pass
        return time.perf_counter() - start


def measure_threads(paths: list) -> None:
    """How far cores help depends on what else the machine does: hashing, which needs neither memory
    nor the interpreter, is the measure."""
    def read(path):
        return tamur.read(path).bars["length"].sum()

    def hash_some(_):
        hashlib.sha256(data).digest()

    data = bytes(10000)
    some = paths[:100]
    cores = os.cpu_count()
    data *= max(round(seconds_in(1, read, some) / seconds_in(1, hash_some, some)), 1)
    for _ in range(5):
        alone, together = seconds_in(1, read, paths), seconds_in(cores, read, paths)
        print("file", alone / len(paths))
        print("threads", alone / together)
        hashing = seconds_in(1, hash_some, paths) / seconds_in(cores, hash_some, paths)
        print("threads_to_hashing", alone / together / hashing)


def resident() -> int:
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def measure_memory(path: str, cycles: int) -> None:
    def cycle():
        model = tamur.read(path, check=True)
        return len(model.bars["labels"].values) + len(model.findings)

    for _ in range(100):
        cycle()
    before = resident()
    for _ in range(cycles):
        cycle()
    print("memory", resident() / before)


def main() -> None:
    component, sample, rounds, files = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        bars = os.path.join(folder, "bars.txt")
        write_bars(bars)
        measure_reading(Component(component), bars, int(rounds))
        copy = shutil.copy(sample, os.path.join(folder, "copy.txt"))
        paths = [os.path.join(folder, f"{number}.txt") for number in range(int(files))]
        for path in paths:
            os.link(copy, path)
        measure_threads(paths)
        measure_memory(sample, int(files))


if __name__ == "__main__":
    main()
