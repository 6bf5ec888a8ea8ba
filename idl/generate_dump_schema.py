"""Makes the JSON Schema of what `tamur dump` writes, from the contract and the names of the
columns. It is committed as docs/dump.schema.json.

usage: generate_dump_schema.py IDL SCHEMA
"""
import json
import sys

from contract import Contract, Field, Record, read_contract
from row_columns import TABLES

# In elements, the ranks of records in their tables.
REFERENCES = {"TMRMaterial": "Materials", "TMRSectionGeometry": "Sections",
              "TMRAttache": "Attaches"}
# What is only a list with its number, and what is no list of pointers.
LISTS = ("TMRElementLabels", "TMR3DPlanarElement", "TMRPorteeCoefficients")
INTEGERS = {"int": (-2 ** 31, 2 ** 31 - 1), "long": (-2 ** 31, 2 ** 31 - 1),
            "unsigned char": (0, 255), "char": (-128, 127)}
REAL = {"anyOf": [{"type": "number"}, {"enum": ["inf", "-inf", "nan"]}]}
TEXT = {"type": ["string", "null"]}


def integer(type_name: str) -> dict:
    low, high = INTEGERS[type_name]
    return {"type": "integer", "minimum": low, "maximum": high}


def list_of(items: dict, length: int = 0) -> dict:
    fixed = {"minItems": length, "maxItems": length} if length else {}
    return {"type": "array", "items": items, **fixed}


class Schema:
    def __init__(self, contract: Contract):
        self.contract = contract
        self.records = {record.name: record for record in contract.records}
        self.enumerations = {each.name for each in contract.enumerations}
        self.columns = {(table.record, path): (text, unit)
                        for table in TABLES for _, path, unit, text in table.columns}

    def value(self, type_name: str) -> dict:
        if type_name == "double":
            return {"$ref": "#/$defs/real"}
        if type_name == "BSTR":
            return TEXT
        if type_name in self.enumerations:
            return integer("int")
        if type_name == "TMR3DPnt":
            return {"$ref": "#/$defs/point"}
        if type_name in LISTS:
            return list_of(self.value(self.records[type_name].fields[1].type))
        if type_name in REFERENCES:
            return {"anyOf": [{"type": "integer", "minimum": 0,
                               "description": f"rank in {REFERENCES[type_name]}, from 0"},
                              {"$ref": f"#/$defs/{type_name}"}]}
        if type_name in self.records:
            return {"$ref": f"#/$defs/{type_name}"}
        return integer(type_name)

    def field(self, record: Record, field: Field) -> dict:
        if field.type == "char" and field.name == "Code":
            value = {"type": "string", "minLength": 1, "maxLength": 1}
        else:
            value = self.value(field.type)
        if field.is_pointer or field.length:
            value = list_of(value, field.length or 0)
        text, unit = self.columns.get((record.name, field.name), ("", ""))
        description = text + (f" [{unit}]" if unit else "")
        return {**value, "description": description} if description else value

    def record(self, record: Record) -> dict:
        return {"type": "object", "additionalProperties": False,
                "required": [field.name for field in record.fields],
                "properties": {field.name: self.field(record, field) for field in record.fields}}

    def used_records(self, names: list[str]) -> list[str]:
        """Those that are written as objects, with what is in them."""
        used = []
        for name in names:
            if name not in self.records or name in (*LISTS, "TMR3DPnt") or name in used:
                continue
            used.append(name)
            inner = self.used_records([field.type for field in self.records[name].fields])
            used += [one for one in inner if one not in used]
        return used

    def whole(self) -> dict:
        tables = [table for owner in self.contract.accessors() for table in owner.tables]
        members = {
            "File": {"type": "string", "description": "as it was given; \"stdin\" for -"},
            "Version": {"type": "string", "description": "of the file, as written"},
            "ServicePack": {"type": ["integer", "null"],
                            "description": "null when the file says none"}}
        for table in tables:
            members[table.name] = {**list_of({"$ref": f"#/$defs/{table.record}"}),
                                   "description": table.plain_name}
        members["StructureGlobalData"] = {"$ref": "#/$defs/TMRStructureData"}
        members["NbCombinaisonsSkipped"] = {"type": "integer", "minimum": 0,
                                            "description": "combinations that lack a case"}
        members["Modes"] = {"$ref": "#/$defs/TMRModes"}
        members["Messages"] = list_of({"type": "string"})
        records = self.used_records([table.record for table in tables]
                                    + ["TMRStructureData", "TMRModes"])
        definitions = {"real": REAL, "point": list_of({"$ref": "#/$defs/real"}, 3)}
        definitions.update((name, self.record(self.records[name])) for name in records)
        return {"$schema": "https://json-schema.org/draft/2020-12/schema",
                "title": "What `tamur dump` writes",
                "description": "Made from the contract. All members are there unless --select "
                               "leaves them out.",
                "type": "object", "additionalProperties": False,
                "required": ["File", "Version", "ServicePack"],
                "properties": members, "$defs": definitions}


def schema_text(idl: str) -> str:
    return json.dumps(Schema(read_contract(idl)).whole(), indent=1, ensure_ascii=False) + "\n"


def main() -> None:
    text = schema_text(sys.argv[1])
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write(text)


if __name__ == "__main__":
    main()
