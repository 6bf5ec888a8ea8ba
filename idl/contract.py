"""Reads the contract, idl/TAMURReader.idl, for the scripts that make something from it."""
import re
import sys
from dataclasses import dataclass
from typing import Optional


@dataclass(frozen=True)
class Field:
    type: str              # as in the contract: "unsigned char", "BSTR", a record, ...
    is_pointer: bool
    name: str
    count: Optional[str]   # number of the values behind a pointer, in the record's other fields
    length: Optional[int]  # of an array inside the record


@dataclass(frozen=True)
class Record:
    name: str
    fields: list[Field]


@dataclass(frozen=True)
class Enumeration:
    name: str
    values: list[tuple[str, int]]


@dataclass(frozen=True)
class Parameter:
    direction: str  # "in", "out" (all of them are return values) or "in, out"
    type: str
    stars: int
    name: str


@dataclass(frozen=True)
class Method:
    name: str
    parameters: list[Parameter]


@dataclass(frozen=True)
class Interface:
    name: str
    iid: str
    base: str
    methods: list[Method]  # its own


@dataclass(frozen=True)
class Coclass:
    name: str
    clsid: str


@dataclass(frozen=True)
class Contract:
    library_id: str
    enumerations: list[Enumeration]
    records: list[Record]
    interfaces: list[Interface]
    coclasses: list[Coclass]

    def inherited(self, interface: Interface) -> list[Method]:
        """The methods between those of IUnknown and the interface's own, in vtable order."""
        for base in self.interfaces:
            if base.name == interface.base:
                return self.inherited(base) + base.methods
        return []


ENUMERATION = re.compile(r"typedef enum (\w+)\s*\{(.*?)\}", re.S)
RECORD = re.compile(r"typedef struct (\w+)\s*\{(.*?)\}", re.S)
LIBRARY = re.compile(r"\[\s*uuid\(([\w-]+)\)[^\]]*\]\s*library\b")
INTERFACE = re.compile(
    r"uuid\((?P<iid>[\w-]+)\)[^\]]*\]\s*"
    r"interface (?P<name>\w+) : (?P<base>\w+)\s*\{(?P<body>.*?)\}", re.S)
COCLASS = re.compile(r"uuid\((?P<clsid>[\w-]+)\)[^\]]*\]\s*coclass (?P<name>\w+)")
FIELD = re.compile(
    r"(?:\[size_is\((?P<count>.*)\)\]\s*)?(?P<type>\w[\w ]*?)(?P<star>\*?)\s+(?P<name>\w+)"
    r"(?:\[(?P<length>\d+)\])?")
METHOD = re.compile(r"HRESULT (?P<name>\w+)\((?P<parameters>.*)\)", re.S)
PARAMETER = re.compile(
    r"\[(?P<direction>in, out|in|out)(?:, retval)?\]\s*(?P<type>\w+)(?P<stars>\**) (?P<name>\w+)")


def _match(pattern: re.Pattern, text: str) -> re.Match:
    match = pattern.fullmatch(text.strip())
    if not match:
        sys.exit(f"cannot read in the contract: {text.strip()}")
    return match


def _declarations(body: str) -> list[str]:
    return [part for part in body.split(";") if part.strip()]


def _field(text: str) -> Field:
    match = _match(FIELD, text)
    length = match["length"]
    return Field(match["type"], match["star"] == "*", match["name"], match["count"],
                 int(length) if length else None)


def _method(text: str) -> Method:
    match = _match(METHOD, text)
    parameters = []
    for part in re.split(r",(?![^\[]*\])", match["parameters"]):
        parameter = _match(PARAMETER, part)
        parameters.append(Parameter(parameter["direction"], parameter["type"],
                                    len(parameter["stars"]), parameter["name"]))
    return Method(match["name"], parameters)


def read_contract(path: str) -> Contract:
    with open(path, encoding="utf-8") as file:
        idl = re.sub(r"//.*", "", file.read())
    return Contract(
        LIBRARY.search(idl)[1],
        [Enumeration(name, [(value, int(number))
                            for value, number in re.findall(r"(\w+)\s*=\s*(\d+)", body)])
         for name, body in ENUMERATION.findall(idl)],
        [Record(name, [_field(part) for part in _declarations(body)])
         for name, body in RECORD.findall(idl)],
        [Interface(match["name"], match["iid"], match["base"],
                   [_method(part) for part in _declarations(match["body"])])
         for match in INTERFACE.finditer(idl)],
        [Coclass(match["name"], match["clsid"]) for match in COCLASS.finditer(idl)])
