"""Replaces the build time in a type library by one that is always the same.

usage: fix_type_library_time.py FILE
"""
import re
import sys

TIME = rb"(Created by WIDL version [0-9.]+ at )([^\n\0]{24})"


def main() -> None:
    path = sys.argv[1]
    with open(path, "rb") as file:
        content = file.read()
    content, count = re.subn(TIME, rb"\1Thu Jan  1 00:00:00 1970", content)
    if count != 1:
        sys.exit(f"{path}: expected one build time, found {count}")
    with open(path, "wb") as file:
        file.write(content)


if __name__ == "__main__":
    main()
