"""What the tool says of itself with --help, as data."""
import dataclasses
import re
import subprocess

# "  -o,--output OUT             where", or the same in two lines.
ENTRY = re.compile(r"  (\S.*?)(?:\s{2,}(\S.*))?$")
VALUE = re.compile(r"([A-Z][A-Z-]*)(?:\[,\1\.\.\.\])?")


@dataclasses.dataclass
class Option:
    names: list[str]
    value: str  # "" for one that has none
    values: str  # the value, or several: "CODE[,CODE...]"
    description: str
    choices: list[str]

    @property
    def takes_file(self) -> bool:
        return self.value in ("FILE", "OUT", "PATH")


@dataclasses.dataclass
class Command:
    name: str
    description: str
    usage: str
    options: list[Option]
    positionals: list[Option]
    commands: list["Command"]
    footer: str


def sections(text: str) -> dict[str, str]:
    """The head, "Options", "Positionals", "Subcommands", and what follows them."""
    parts = {"head": "", "footer": ""}
    current = "head"
    for line in text.splitlines():
        if line in ("Options:", "Positionals:", "Subcommands:"):
            current = line.rstrip(":")
            parts[current] = ""
        else:
            if current not in ("head", "footer") and line and not line.startswith("  "):
                current = "footer"
            parts[current] += line + "\n"
    return parts


def entries(text: str) -> list[tuple[str, str]]:
    found: list[tuple[str, str]] = []
    for line in text.splitlines():
        entry = ENTRY.match(line)
        if entry and not line.startswith(" " * 20):
            found.append((entry[1], entry[2] or ""))
        elif line.strip():
            left, right = found.pop()
            found.append((left, f"{right} {line.strip()}".strip()))
    return found


def choices_of(left: str, value: str, description: str, footer: str) -> list[str]:
    """{a,b} after the value, "a, b or c" as its description, or a list "Values: ..." in the end."""
    listed = re.search(r"\{(.*)\}", left)
    if listed:
        return listed[1].split(",")
    plain = re.sub(r" \([^)]*\)", "", description)
    if value and re.fullmatch(r"[\w-]+(, [\w-]+)* or [\w-]+", plain):
        return re.split(", | or ", plain)
    table = re.search(rf"^{value}s\b.*:\n((?:  .*\n)+)", footer, re.M | re.I) if value else None
    return [line.split()[0] for line in table[1].splitlines()] if table else []


def option(left: str, description: str, footer: str) -> Option:
    names, _, rest = left.partition(" ")
    value = VALUE.match(rest.replace("REQUIRED", ""))
    value_name, values = (value[1], value[0]) if value else ("", "")
    return Option(names.split(","), value_name, values, description,
                  choices_of(left, value_name, description, footer))


def read(tool: str, name: str = "") -> Command:
    arguments = [tool, *([name] if name else []), "--help"]
    text = subprocess.run(arguments, check=True, capture_output=True, text=True).stdout
    part = sections(text)
    description, _, usage = part["head"].partition("\nUsage: ")
    footer = part["footer"]
    subcommands = entries(part.get("Subcommands", ""))
    return Command(
        name, description.strip(), usage.strip(),
        [option(left, right, footer) for left, right in entries(part["Options"])],
        [option(left, right, footer) for left, right in entries(part.get("Positionals", ""))],
        [read(tool, left) for left, _ in subcommands], footer.strip("\n"))
