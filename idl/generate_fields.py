"""Makes the header that names the fields of every record, from the contract.

usage: generate_fields.py IDL HEADER
"""
import re
import sys

from contract import Field, Record, read_contract

HEADER = """// The fields of every record by name. Made from the contract; do not edit.
//
// VisitFields(record, visitor) calls, in the published order,
//   visitor.Field("name", record.name)            for a field held by value, and
//   visitor.Array("name", record.name, count)     for a pointer and the number of its values, which
//                                                 is 0 where the record has a negative one.
#pragma once

#include <TAMURReader.h>

namespace tamur {

constexpr int ValuesFor(int count)
{
    return count > 0 ? count : 0;
}
"""


def visit_line(record: Record, field: Field) -> str:
    name = field.name
    if not field.count:
        return f'    visitor.Field("{name}", record.{name});'
    types = {other.name: other.type for other in record.fields}

    def value(match: re.Match) -> str:
        other = match[1]
        return f"ValuesFor(record.{other})" if types[other] == "int" else f"record.{other}"

    count = re.sub(r"\b([A-Za-z_]\w*)\b(?!')", value, field.count)
    return f'    visitor.Array("{name}", record.{name}, {count});'


def main() -> None:
    parts = [HEADER]
    for record in read_contract(sys.argv[1]).records:
        parts.append(
            "template <class Visitor>\n"
            f"void VisitFields({record.name}& record, Visitor&& visitor)\n"
            "{\n" + "\n".join(visit_line(record, field) for field in record.fields) + "\n}\n")
    parts.append("}  // namespace tamur\n")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write("\n".join(parts))


if __name__ == "__main__":
    main()
