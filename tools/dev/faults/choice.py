"""Which faults are planted: as many of each file as its share of the code, always the same.

Code are the lines in which something can be planted: declarations are none.
"""

import random
import subprocess
import threading
from pathlib import Path

from .source import faults_of

NOT_IN_THIS_BUILD = ("src/platform/windows/", "src/server/windows/")


def project_files(root):
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "-z"],
                            cwd=root, check=True, capture_output=True).stdout
    names = set(listed.decode().split("\0")) - {""}
    return sorted(name for name in names if (root / name).is_file())


def read_sources(root):
    return {name: (root / name).read_text() for name in project_files(root)
            if name.startswith("src/") and name.endswith((".cpp", ".h"))
            and not name.startswith(NOT_IN_THIS_BUILD)}


def shuffled(faults, seed, file):
    """In an order that comes back to a line only when every other line had its turn."""
    faults = sorted(faults, key=lambda fault: (fault.line, fault.changed))
    random.Random(f"{seed}:{file}").shuffle(faults)
    turns, seen = [], {}
    for fault in faults:
        seen[fault.line] = seen.get(fault.line, 0) + 1
        turns.append((seen[fault.line], fault))
    return [fault for _, fault in sorted(turns, key=lambda turn: turn[0])]


class Choice:
    """Hands out faults to the workers until enough of them counted."""

    def __init__(self, sources, count, seed):
        self.lock = threading.Lock()
        self.queues = {file: shuffled(faults_of(file, text), seed, file)
                       for file, text in sources.items()}
        self.queues = {file: queue for file, queue in self.queues.items() if queue}
        sizes = {file: len({fault.line for fault in queue}) for file, queue in self.queues.items()}
        exact = {file: count * size / sum(sizes.values()) for file, size in sizes.items()}
        self.wanted = {file: int(share) for file, share in exact.items()}
        for file in sorted(exact, key=lambda file: self.wanted[file] - exact[file]):
            if sum(self.wanted.values()) < count:
                self.wanted[file] += 1
        self.order = list(self.queues)
        random.Random(seed).shuffle(self.order)
        # Headers take longest: what is left out when a run is stopped early.
        self.order.sort(key=lambda file: file.endswith(".h"))

    def next(self):
        with self.lock:
            spare = sum(n for file, n in self.wanted.items() if n > 0 and not self.queues[file])
            for file in self.order:
                if self.queues[file] and self.wanted[file] > 0:
                    return self._take(file)
            # Files that ran out of faults leave their share to those with the most left.
            left = max(self.order, key=lambda file: len(self.queues[file]))
            if spare > 0 and self.queues[left]:
                drained = next(f for f, n in self.wanted.items() if n > 0 and not self.queues[f])
                self.wanted[drained] -= 1
                self.wanted[left] += 1
                return self._take(left)
            return None

    def _take(self, file):
        self.wanted[file] -= 1
        return self.queues[file].pop(0)

    def did_not_count(self, fault):
        with self.lock:
            self.wanted[fault.file] += 1
