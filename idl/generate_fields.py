"""Makes the header that names the fields of every record, from the contract.

usage: generate_fields.py IDL HEADER
"""
import re
import sys

HEADER = """// The fields of every record by name. Made from the contract; do not edit.
//
// VisitFields(record, visitor) calls, in the published order,
//   visitor.Field("name", record.name)            for a field held by value, and
//   visitor.Array("name", record.name, count)     for a pointer and the number of its values.
#pragma once

#include <TAMURReader.h>

namespace tamur {
"""

RECORD = re.compile(r"typedef struct (\w+)\s*\{(.*?)\}\s*(\w+);", re.S)
FIELD = re.compile(r"(?:\[size_is\((?P<count>.*)\)\]\s*)?[\w ]+?(?P<star>\*?)\s+(?P<name>\w+)(?:\[\d+\])?$")


def visit_lines(body: str) -> list[str]:
    lines = []
    for declaration in re.sub(r"//.*", "", body).split(";"):
        declaration = declaration.strip()
        if not declaration:
            continue
        field = FIELD.match(declaration)
        if not field:
            sys.exit(f"cannot read the field: {declaration}")
        name = field["name"]
        if field["count"]:
            count = re.sub(r"\b([A-Za-z_]\w*)\b(?!')", r"record.\1", field["count"])
            lines.append(f'    visitor.Array("{name}", record.{name}, {count});')
        else:
            lines.append(f'    visitor.Field("{name}", record.{name});')
    return lines


def main() -> None:
    with open(sys.argv[1], encoding="utf-8") as file:
        idl = file.read()
    parts = [HEADER]
    for name, body, _ in RECORD.findall(idl):
        parts.append(
            "template <class Visitor>\n"
            f"void VisitFields({name}& record, Visitor&& visitor)\n"
            "{\n" + "\n".join(visit_lines(body)) + "\n}\n")
    parts.append("}  // namespace tamur\n")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write("\n".join(parts))


if __name__ == "__main__":
    main()
