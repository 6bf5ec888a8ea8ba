"""The list of lines that no test reaches, each with its reason: file | source line | reason."""
from collections import Counter
from pathlib import Path


def read_list(path):
    entries = Counter()
    for line in Path(path).read_text(encoding="utf-8").splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        # The source line may itself hold the sign.
        file, rest = line.split(" | ", 1)
        text, reason = rest.rsplit(" | ", 1)
        if not reason.strip():
            raise ValueError(f"no reason: {line}")
        entries[file.strip(), text.strip()] += 1
    return entries


def lines_not_reached(measured):
    """(file, text of the line) and its number, in order."""
    for file in sorted(measured):
        for number, count in sorted(measured[file].lines.items()):
            if count == 0:
                yield (file, measured[file].text(number)), number


def compare(measured, path):
    """Lines not in the list, entries that are wrong, and how many lines the list covers."""
    entries = read_list(path)
    size = sum(entries.values())
    unlisted = []
    for key, number in lines_not_reached(measured):
        if entries[key] > 0:
            entries[key] -= 1
        else:
            unlisted.append(f"{key[0]}:{number}: {key[1]}")
    stale = [" | ".join(key) for key, count in entries.items() for _ in range(count)]
    return unlisted, stale, size - len(stale)
