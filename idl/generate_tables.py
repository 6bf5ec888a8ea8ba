"""Makes the header that tells C++ hosts the tables of a reader, from the contract.

usage: generate_tables.py IDL HEADER
"""
import sys

from contract import Accessor, Table, read_contract

HEADER = """// The tables of a reader and its accessors. Made from the contract; do not edit.
//
// Part of <tamur/ranges.h>, which has what is used here.
#pragma once

#include <tamur/ranges.h>

namespace tamur {
"""


def table(owner: Accessor, one: Table) -> str:
    interface = owner.interface.name
    return f"""// {one.plain_name[0].upper()}{one.plain_name[1:]}.
template <>
struct TableOf<{one.record}> {{
    using PublicRecord = {one.record};
    using Accessor = {interface};
    static constexpr const char* kName = "{one.name}";
    static constexpr const char* kPlainName = "{one.plain_name}";
    static constexpr auto kGetAccessor = &ITAMURStructureReader::{owner.getter};
    static constexpr auto kGetCount = &{interface}::{one.count};
    static constexpr auto kGetAtRank = &{interface}::{one.at_rank};
}};
inline Range<{one.record}> {one.name}(ITAMURStructureReader& reader)
{{
    return Records<{one.record}>(reader);
}}
"""


def accessor(one: Accessor) -> str:
    name = one.interface.name
    return (f'    visit("{name}", IID_{name}, &ITAMURStructureReader::{one.getter});')


def main() -> None:
    accessors = read_contract(sys.argv[1]).accessors()
    parts = [HEADER]
    parts += [table(owner, one) for owner in accessors for one in owner.tables]
    visits = "\n".join(f"    visit(TableOf<{one.record}>());"
                       for owner in accessors for one in owner.tables)
    parts.append("// Calls visit(TableOf<record>()) for every table, in the contract's order.\n"
                 "template <class Visit>\n"
                 "void ForEachTableType(Visit&& visit)\n"
                 "{\n" + visits + "\n}\n")
    visits = "\n".join(accessor(one) for one in accessors)
    parts.append("// Calls visit(name, interface identifier, reader's method) for every accessor.\n"
                 "template <class Visit>\n"
                 "void ForEachAccessor(Visit&& visit)\n"
                 "{\n" + visits + "\n}\n")
    parts.append("}  // namespace tamur\n")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write("\n".join(parts))


if __name__ == "__main__":
    main()
