"""Pages of the site about the contract: what idl/TAMURReader.idl declares, with its comments, and
the units and meanings that idl/row_columns.py gives to the fields.
"""
import re
import sys
from pathlib import Path
from typing import Optional

from slugs import slug_of

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "idl"))
from contract import Contract, Field, Interface, Method, Record, read_contract  # noqa: E402
from contract_comments import Comments, read_comments  # noqa: E402
from rows import Rows, all_rows  # noqa: E402

IDL = ROOT / "idl" / "TAMURReader.idl"
RUN = re.compile(r"(columns|tokens) (\d+) to (\d+)$")


class Sources:
    """Where in the file a field comes from, as the contract's comments say. Of a run of fields
    ("columns 13 to 18") the first one has the comment: each gets its own part."""

    def __init__(self, record: Record, comments: Comments) -> None:
        self.of: dict[str, str] = {}
        place = last = 0
        for field in record.fields:
            comment = comments.of_member.get((record.name, field.name), "")
            if match := RUN.match(comment):
                word, place, last = match[1][:-1], int(match[2]), int(match[3])
            if not place or (comment and not match):
                self.of[field.name] = comment
                continue
            end = place + (field.length or 1) - 1
            self.of[field.name] = f"{word} {place}" if end == place else f"{word}s {place} to {end}"
            place = end + 1
            if end == last:
                place = 0
        if place:
            sys.exit(f"{IDL}: {record.name}: the run of {word}s to {last} ends before")


def cell(text: str) -> str:
    return text.replace("|", "\\|")


def sentence(text: str) -> str:
    return text[:1].upper() + text[1:] + ("" if text.endswith(".") else ".")


class ContractPages:
    def __init__(self) -> None:
        self.contract: Contract = read_contract(str(IDL))
        self.comments = read_comments(str(IDL))
        self.records = {record.name: record for record in self.contract.records}
        self.enumerations = {one.name for one in self.contract.enumerations}
        self.rows = {rows.names.record: rows for rows in all_rows(self.contract)
                     if rows.names.record}
        self.meanings = self._meanings()
        self.format_places = format_places()

    def pages(self) -> dict[str, str]:
        return {"reference/contract.md": self.interfaces_page(),
                "reference/records.md": self.records_page()}

    # ------------------------------------------------------------ records

    def records_page(self) -> str:
        used = {field.type for one in self.contract.records for field in one.fields}
        parts = ["# Records\n\nEvery record and enumeration of the contract, field by field. *In "
                 "the file* is where a field comes from, as the contract says; a column is one of "
                 "a line of [the model file](../model-file.md). Units are what the product writes: "
                 "nothing is converted. Arrays and texts are the host's to free "
                 "([who owns what](contract.md#what-holds-for-all-of-it)).\n",
                 "## Served records\n\nA table of each is served by an accessor.\n"]
        served = [record for record in self.contract.records if record.name in self.rows]
        inner = [record for record in self.contract.records if record.name not in self.rows]
        parts += map(self._record, served)
        parts.append("## Records inside of records\n")
        parts += [self._record(record) for record in inner if record.name in used]
        parts.append("## Records that are only published\n")
        parts += [self._record(record) for record in inner if record.name not in used]
        parts.append("## Enumerations\n")
        parts += [self._enumeration(one) for one in self.contract.enumerations]
        return "\n".join(parts)

    def _record(self, record: Record) -> str:
        about = self.comments.of[record.name]
        lines = [f"### {record.name}\n"]
        if about:
            lines.append(about + "\n")
        lines += self._where_from(record)
        lines += ["| Field | Type | What it is | Unit | In the file |", "|---|---|---|---|---|"]
        sources = Sources(record, self.comments).of
        for field in record.fields:
            text, unit = self.meanings.get((record.name, field.name), ("", ""))
            source = sources[field.name].removesuffix(f": {text}")
            lines.append(f"| `{field.name}` | {self._type(field)} | {cell(text)} | {unit} | "
                         f"{cell(source)} |")
        return "\n".join(lines) + "\n"

    def _where_from(self, record: Record) -> list[str]:
        lines = []
        for accessor in self.contract.accessors():
            for table in accessor.tables:
                if table.record == record.name:
                    interface = accessor.interface.name
                    lines.append(
                        f"- {sentence(table.plain_name)[:-1]}: `{table.at_rank}` of "
                        f"[`{interface}`](contract.md#{slug_of(interface)}); in C++ "
                        f"`tamur::{table.name}(reader)`")
        if record.name in self.rows:
            name = self.rows[record.name].names.name
            lines.append(f"- In Python and C: [`{name}`](../columns.md#{slug_of(name)})")
        if place := self.format_places.get(record.name):
            lines.append(f"- In the file: [{place[0]}](../model-file.md#{place[1]})")
        return lines + [""] if lines else []

    def _type(self, field: Field) -> str:
        name = f"`{field.type}`"
        if field.type in self.records or field.type in self.enumerations:
            name = f"[{name}](#{slug_of(field.type)})"
        if field.count:
            return f"{name} × `{cell(field.count)}`"
        return f"{name} × {field.length}" if field.length else name

    def _meanings(self) -> dict[tuple[str, str], tuple[str, str]]:
        """What a field is and its unit, where all columns that have it say the same."""
        found: dict[tuple[str, str], set[tuple[str, str]]] = {}
        for rows in self.rows.values():
            for column in rows.columns:
                if column.path:
                    # Rows refer to another table where the contract's record has a copy.
                    text = "a copy of it" if column.kind == "reference" else column.text
                    key = self._owner(rows, column.path)
                    found.setdefault(key, set()).add((text, column.unit))
        return {key: said.pop() for key, said in found.items() if len(said) == 1}

    def _owner(self, rows: Rows, path: str) -> tuple[str, str]:
        owner = rows.names.record
        *parents, last = path.split(".")
        for parent in parents:
            owner = next(field.type for field in self.records[owner].fields
                         if field.name == parent)
        return owner, last

    def _enumeration(self, one) -> str:
        lines = [f"### {one.name}\n"]
        if self.comments.of[one.name]:
            lines.append(self.comments.of[one.name] + "\n")
        lines += ["| Name | Value | |", "|---|---|---|"]
        lines += [f"| `{name}` | {value} | {self.comments.of_member.get((one.name, name), '')} |"
                  for name, value in one.values]
        return "\n".join(lines) + "\n"

    # ------------------------------------------------------------ interfaces

    def interfaces_page(self) -> str:
        parts = ["# The contract\n\nEvery interface and class that the component publishes, made "
                 "from `idl/TAMURReader.idl`; the records are on [a page of their own]"
                 "(records.md). How a host gets the reader is told in [worked hosts]"
                 "(../hosts/index.md).\n",
                 "## What holds for all of it\n", self._introduction(),
                 "## The reader\n", self._interface(self._named("ITAMURStructureReader")),
                 "## Accessors\n", self.comments.accessors + "\n", self._tables(),
                 self._interface(self._named("IGenericAccessor"))]
        parts += [self._interface(accessor.interface) for accessor in self.contract.accessors()]
        parts += ["## Classes\n", self.comments.classes + "\n", self._classes()]
        return "\n".join(parts)

    def _introduction(self) -> str:
        """The paragraphs of the file that speak to hosts: not the first, about what is made of it,
        nor the last, which is for contract.py."""
        lines = self.comments.introduction
        first = lines.index("") + 1
        last = len(lines) - 1 - lines[::-1].index("")
        made = []
        for line in lines[first:last]:
            if re.match(r" ?- |\S", line) and made and made[-1][:1] in "-" and line[:1] != " ":
                made.append("")
            if line.startswith(" - ") and made and not made[-1].startswith("-"):
                made.append("")
            if line.startswith("   ") and made:
                made[-1] += " " + line.strip()
            else:
                made.append(line.strip())
        return "\n".join(made) + "\n"

    def _named(self, name: str) -> Interface:
        return next(one for one in self.contract.interfaces if one.name == name)

    def _tables(self) -> str:
        lines = ["| Table | Record | Accessor | Method of the reader |", "|---|---|---|---|"]
        for accessor in self.contract.accessors():
            name = accessor.interface.name
            for table in accessor.tables:
                lines.append(f"| {table.plain_name} | [`{table.record}`](records.md#"
                             f"{slug_of(table.record)}) | [`{name}`](#{slug_of(name)}) | "
                             f"`{accessor.getter}` |")
        return "\n".join(lines) + "\n"

    def _interface(self, interface: Interface) -> str:
        lines = [f"### {interface.name}\n"]
        if self.comments.of[interface.name]:
            lines.append(self.comments.of[interface.name] + "\n")
        tables = [table for accessor in self.contract.accessors()
                  if accessor.interface == interface for table in accessor.tables]
        if tables:
            lines.append("Serves " + ", ".join(
                f"[{table.plain_name}](records.md#{slug_of(table.record)})" for table in tables)
                + ".\n")
        lines.append(f"Identifier `{{{interface.iid.upper()}}}`, derived from "
                     f"`{interface.base}`.\n")
        if interface.methods:
            lines += ["| Method | Parameters | |", "|---|---|---|"]
            said = ""
            for method in interface.methods:
                comment = self.comments.of_member.get((interface.name, method.name), "")
                lines.append(self._method(method, "the same" if comment and comment == said
                                          else comment))
                said = comment
        return "\n".join(lines) + "\n"

    def _method(self, method: Method, comment: str) -> str:
        parameters = []
        for one in method.parameters:
            name = f"`{one.type}{'*' * one.stars}`"
            if one.type in self.records:
                name = f"[{name}](records.md#{slug_of(one.type)})"
            elif one.stars == 2:
                name = f"[{name}](#{slug_of(one.type)})"
            parameters.append(f"{one.direction} {name} `{one.name}`")
        return f"| `{method.name}` | {'; '.join(parameters)} | {cell(comment)} |"

    def _classes(self) -> str:
        lines = ["| Class | Identifier |", "|---|---|"]
        lines += [f"| `{one.name}` | `{{{one.clsid.upper()}}}` |"
                  for one in self.contract.coclasses]
        return "\n".join(lines) + "\n"


def format_places() -> dict[str, tuple[str, str]]:
    """The heading of docs/model-file.md, and its anchor, under which a record is described."""
    places: dict[str, tuple[str, str]] = {}
    heading: Optional[str] = None
    kinds = {}
    for line in (ROOT / "docs" / "model-file.md").read_text(encoding="utf-8").splitlines():
        if match := re.match(r"##+ (.+)", line):
            heading = match[1]
            kinds[slug_of(heading)] = heading
        if heading and (match := re.search(r"\bRecord `(TMR\w+)`", line)):
            places.setdefault(match[1], (heading, slug_of(heading)))
    text = (ROOT / "docs" / "model-file.md").read_text(encoding="utf-8")
    for anchor, record in re.findall(r"^\| \[\d+\]\(#([\w-]+)\) \|[^|]*\| `(TMR\w+)`", text, re.M):
        places[record] = (kinds[anchor], anchor)
    return places
