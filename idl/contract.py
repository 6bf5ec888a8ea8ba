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
    count: Optional[str]   # of the values that a pointer leads to, in the record's other fields
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
class Table:
    name: str        # in the plural: "AppuisPonctuels"
    plain_name: str  # what an engineer calls it: "point supports"
    record: str
    count: str       # the methods of its accessor
    at_rank: str


@dataclass(frozen=True)
class Accessor:
    interface: Interface
    getter: str          # the method of the reader
    tables: list[Table]

    @property
    def stem(self) -> str:
        return self.interface.name.removeprefix("I")

    @property
    def further_methods(self) -> list[Method]:
        """Those that serve no table."""
        named = {name for table in self.tables for name in (table.count, table.at_rank)}
        return [method for method in self.interface.methods if method.name not in named]


@dataclass(frozen=True)
class Contract:
    library_id: str
    enumerations: list[Enumeration]
    records: list[Record]
    interfaces: list[Interface]
    coclasses: list[Coclass]
    table_names: dict[tuple[str, str], tuple[str, str]]  # by interface and rank method

    def inherited(self, interface: Interface) -> list[Method]:
        """The methods between those of IUnknown and the interface's own, in vtable order."""
        for base in self.interfaces:
            if base.name == interface.base:
                return self.inherited(base) + base.methods
        return []

    def accessors(self) -> list[Accessor]:
        """In the order of the reader's methods."""
        interfaces = {interface.name: interface for interface in self.interfaces}
        return [Accessor(interfaces[parameter.type], method.name,
                         self._tables(interfaces[parameter.type]))
                for method in interfaces["ITAMURStructureReader"].methods
                for parameter in method.parameters if parameter.stars == 2]

    def _tables(self, interface: Interface) -> list[Table]:
        """The k-th count of an accessor belongs to its k-th method that fills a record by rank."""
        records = {record.name for record in self.records}
        counts = [method.name for method in interface.methods
                  if method.name.startswith("GetNb") and method.parameters[-1].type == "long"]
        ranks = [method for method in interface.methods
                 if method.name.endswith("AtRank") and method.parameters[-1].type in records]
        if ranks and len(counts) != len(ranks):
            sys.exit(f"{interface.name}: {len(counts)} counts for {len(ranks)} tables")
        tables = []
        for count, rank in zip(counts, ranks):
            if (interface.name, rank.name) not in self.table_names:
                sys.exit(f"{interface.name}: no line \"// Table\" before {rank.name}")
            name, plain_name = self.table_names[interface.name, rank.name]
            tables.append(Table(name, plain_name, rank.parameters[-1].type, count, rank.name))
        return tables


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
TABLE = re.compile(r"// Table (\w+): (.+)\n(?:\s*//.*\n)*\s*HRESULT (\w+)\(")
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


def _table_names(text: str) -> dict[tuple[str, str], tuple[str, str]]:
    names = {}
    for part in re.split(r"\binterface (?=\w+ : )", text)[1:]:
        for name, plain_name, method in TABLE.findall(part):
            names[part.split()[0], method] = (name, plain_name)
    return names


def read_contract(path: str) -> Contract:
    with open(path, encoding="utf-8") as file:
        text = file.read()
    idl = re.sub(r"//.*", "", text)
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
        [Coclass(match["name"], match["clsid"]) for match in COCLASS.finditer(idl)],
        _table_names(text))
