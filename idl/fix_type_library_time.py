"""Replaces the build time in a type library by one that is always the same.

usage: fix_type_library_time.py FILE
"""
import re
import sys

# The time is there twice, one after the other: as text, and as a number of seconds (type 19).
TIMES = re.compile(rb"(Created by WIDL version [0-9.]+ at )[^\n\0]{24}(\nW*\x13\0).{4}", re.S)


def main() -> None:
    path = sys.argv[1]
    with open(path, "rb") as file:
        content = file.read()
    content, count = TIMES.subn(rb"\g<1>Thu Jan  1 00:00:00 1970\g<2>\0\0\0\0", content)
    if count != 1:
        sys.exit(f"{path}: expected one build time, found {count}")
    with open(path, "wb") as file:
        file.write(content)


if __name__ == "__main__":
    main()
