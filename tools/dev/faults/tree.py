"""A copy of the sources that faults may be planted in, and what both planters read and run."""

import shutil
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]


def read_list(path):
    """The last column by (file, change), from lines `file | original -> changed | reason`."""
    entries = {}
    for line in path.read_text().splitlines():
        if line.strip() and not line.startswith("#"):
            # The code in the middle may hold bars.
            file, rest = line.split(" | ", 1)
            change, reason = rest.rsplit(" | ", 1)
            entries[file, change] = reason
    return entries


def copy_to(tree):
    """Copies what git knows or would add; returns the names of the files."""
    shutil.rmtree(tree, ignore_errors=True)
    tree.mkdir(parents=True)
    files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                           cwd=ROOT, check=True, capture_output=True).stdout.decode().split("\0")
    present = [file for file in files if (ROOT / file).is_file()]
    subprocess.run(["cp", "--parents", *present, tree], cwd=ROOT, check=True)
    return present


def run(*command, **options):
    done = subprocess.run(command, text=True, errors="replace", stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, **options)
    return done.returncode == 0, done.stdout
