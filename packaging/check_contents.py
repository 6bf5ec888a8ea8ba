#!/usr/bin/env python3
"""Whether binaries contain the parts of others that third_party.json says, and no others of them.

usage: check_contents.py [--system] NM BINARY...

NM lists their symbols, which they still have; --system: they are linked with the system's libraries
"""
import subprocess
import sys
from pathlib import Path

import third_party


def listed(parts: list[dict], binary: str) -> set[str]:
    return {part["name"] for part in parts if "mark" in part and binary in part["in"]}


def found(nm: str, path: str) -> set[str]:
    symbols = subprocess.run([nm, "--demangle", "--defined-only", path], check=True,
                             capture_output=True, text=True).stdout
    return {part["name"] for part in third_party.read_list()
            if "mark" in part and part["mark"] in symbols}


def main() -> int:
    arguments = sys.argv[1:]
    has_system_libraries = arguments[0] == "--system"
    nm, *binaries = arguments[has_system_libraries:]
    parts = third_party.read_list(has_system_libraries)
    wrong = 0
    for path in binaries:
        name = third_party.binary_name(Path(path))
        is_there = found(nm, path)
        for part in sorted(listed(parts, name) ^ is_there):
            print(f"{name}: {part} is {'in it' if part in is_there else 'not in it'}, "
                  "against third_party.json")
            wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
