"""The rows that tables are handed over in: where each column is, by the contract and the names."""
import re
import sys
from dataclasses import dataclass

from contract import Contract, Field, Record
from row_columns import TABLES, TableNames

# C type, format of NumPy, bytes. Texts are places in a block of texts, references in another
# table; lists say where their values are.
KINDS = {
    "int": ("int32_t", "<i4", 4),
    "long": ("int64_t", "<i8", 8),
    "real": ("double", "<f8", 8),
    "text": ("int32_t", "<i4", 4),
    "reference": ("int32_t", "<i4", 4),
    "reals": ("TamurList", "list", 16),
    "points": ("TamurList", "list", 16),
    "ints": ("TamurList", "list", 16),
    "texts": ("TamurList", "list", 16),
}
LARGEST_ALIGNMENT = 8
POINT = 3  # reals
REFERENCES = {"TMRMaterial": "materials", "TMRSectionGeometry": "sections",
              "TMRAttache": "releases"}
NUMBERS = {"char": "int", "unsigned char": "int", "int": "int", "long": "int", "double": "real"}
LISTS = {"double": "reals", "int": "ints"}


@dataclass(frozen=True)
class Column:
    name: str
    path: str       # in the contract's record; empty for what is in none
    unit: str
    text: str
    kind: str
    length: int     # of values side by side in the row; 0 for a single one
    target: str     # of references: the table
    count: str      # of lists: how many values, in terms of the record
    offset: int

    @property
    def size(self) -> int:
        return KINDS[self.kind][2] * max(self.length, 1)


@dataclass(frozen=True)
class Rows:
    names: TableNames
    plain_name: str
    columns: list[Column]
    size: int

    @property
    def c_row(self) -> str:
        return "Tamur" + self.names.row

    @property
    def c_number(self) -> str:
        return "TAMUR_" + self.names.name.upper()

    @property
    def python_class(self) -> str:
        return "".join(part.title() for part in self.names.name.split("_"))


class _Reader:
    def __init__(self, contract: Contract) -> None:
        self.records = {record.name: record for record in contract.records}
        self.enumerations = {one.name for one in contract.enumerations}
        self.plain_names = {table.name: table.plain_name
                            for accessor in contract.accessors() for table in accessor.tables}

    def rows(self, names: TableNames) -> Rows:
        record = self.records.get(names.record)
        columns: list[Column] = []
        place = 0
        for column in names.columns:
            made = self._column(record, *column)
            alignment = min(KINDS[made.kind][2], LARGEST_ALIGNMENT)
            place = -(-place // alignment) * alignment
            columns.append(Column(**{**vars(made), "offset": place}))
            place += made.size
        if record:
            self._check_all_fields_used(names, record)
        size = -(-place // LARGEST_ALIGNMENT) * LARGEST_ALIGNMENT
        if all(KINDS[column.kind][2] == 4 for column in columns):
            size = place
        return Rows(names, self.plain_names.get(names.table, names.table), columns, size)

    def _column(self, record: Record, name: str, path: str, unit: str, text: str) -> Column:
        if path.startswith("="):
            kind = path[1:].replace("double", "real")
            return Column(name, "", unit, text, kind, 0, "", "", 0)
        field, owner = self._field(record, path)
        kind, length, count = self._kind(field, owner, path)
        target = REFERENCES.get(field.type, "")
        return Column(name, path, unit, text, kind, length, target, count, 0)

    def _field(self, record: Record, path: str) -> tuple[Field, Record]:
        *parents, last = path.split(".")
        for parent in parents:
            record = self.records[self._named(record, parent).type]
        return self._named(record, last), record

    @staticmethod
    def _named(record: Record, name: str) -> Field:
        for field in record.fields:
            if field.name == name:
                return field
        sys.exit(f"row_columns.py: {record.name} has no field {name}")

    def _kind(self, field: Field, owner: Record, path: str) -> tuple[str, int, str]:
        parent = "record." + path[:-len(field.name)]
        types = {other.name: other.type for other in owner.fields}

        def in_record(match: re.Match) -> str:
            value = parent + match[1]
            return f"ValuesFor({value})" if types[match[1]] == "int" else value

        if field.count:
            return LISTS[field.type], 0, re.sub(r"\b([A-Za-z_]\w*)\b(?!')", in_record, field.count)
        if field.type == "TMR3DPlanarElement":
            return "points", 0, ""
        if field.type == "TMRPorteeCoefficients":
            return "reals", 0, f"ValuesFor(record.{path}.nbPoints)"
        if field.type == "TMRElementLabels":
            return "texts", 0, ""
        if field.type == "TMR3DPnt":
            return "real", POINT, ""
        if field.type == "BSTR":
            return "text", 0, ""
        if field.type in REFERENCES:
            return "reference", 0, ""
        if field.type in self.enumerations:
            return "int", 0, ""
        if field.type not in NUMBERS:
            sys.exit(f"row_columns.py: {path} of type {field.type} is no column")
        return NUMBERS[field.type], field.length or 0, ""

    def _check_all_fields_used(self, names: TableNames, record: Record) -> None:
        used = {column[1] for column in names.columns}
        for path in self._leaves(record, "", used):
            if path not in used:
                sys.exit(f"row_columns.py: {record.name}.{path} is in no column of {names.name}")

    def _leaves(self, record: Record, parent: str, used: set[str]):
        counts = " ".join(field.count for field in record.fields if field.count)
        for field in record.fields:
            path = parent + field.name
            if path in used or re.search(rf"\b{field.name}\b(?!')", counts):
                continue
            if field.type in self.records and not field.is_pointer:
                yield from self._leaves(self.records[field.type], path + ".", used)
            else:
                yield path


def all_rows(contract: Contract) -> list[Rows]:
    reader = _Reader(contract)
    known = {names.table for names in TABLES}
    for table in reader.plain_names:
        if table not in known:
            sys.exit(f"row_columns.py: the table {table} has no rows")
    return [reader.rows(names) for names in TABLES]
