#!/usr/bin/env python3
"""Writes the tool's manual page and its completions for shells, of what it says of itself.

usage: describe.py TOOL MAN_PAGE BASH_COMPLETION ZSH_COMPLETION FISH_COMPLETION
"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import completions  # noqa: E402
import help_text  # noqa: E402
import man_page  # noqa: E402
import release  # noqa: E402


def main() -> int:
    tool, *outputs = sys.argv[1:]
    description = help_text.read(tool)
    texts = (man_page.text(description, release.version(), release.day().isoformat()),
             completions.bash(description), completions.zsh(description),
             completions.fish(description))
    for path, text in zip(map(Path, outputs), texts, strict=True):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, "utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
