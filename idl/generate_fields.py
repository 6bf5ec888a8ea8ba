"""Makes the header that names the fields of every record, from the contract.

usage: generate_fields.py IDL HEADER
"""
import re
import sys

from contract import Field, read_contract

HEADER = """// The fields of every record by name. Made from the contract; do not edit.
//
// VisitFields(record, visitor) calls, in the published order,
//   visitor.Field("name", record.name)            for a field held by value, and
//   visitor.Array("name", record.name, count)     for a pointer and the number of its values.
#pragma once

#include <TAMURReader.h>

namespace tamur {
"""


def visit_line(field: Field) -> str:
    name = field.name
    if not field.count:
        return f'    visitor.Field("{name}", record.{name});'
    count = re.sub(r"\b([A-Za-z_]\w*)\b(?!')", r"record.\1", field.count)
    return f'    visitor.Array("{name}", record.{name}, {count});'


def main() -> None:
    parts = [HEADER]
    for record in read_contract(sys.argv[1]).records:
        parts.append(
            "template <class Visitor>\n"
            f"void VisitFields({record.name}& record, Visitor&& visitor)\n"
            "{\n" + "\n".join(visit_line(field) for field in record.fields) + "\n}\n")
    parts.append("}  // namespace tamur\n")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write("\n".join(parts))


if __name__ == "__main__":
    main()
