"""Makes the classes that give the component's accessors and its reader the contract's method names.

usage: generate_accessors.py IDL FOLDER      (accessor_classes.h and accessor_getters.h)
"""
import os
import sys

from contract import Accessor, Table, read_contract

CLASSES = """// The accessors, as far as they serve tables. Made from the contract; do not edit.
//
// An accessor with further methods is called ...Tables here; its class derives from that.
#pragma once

#include "accessors/accessor.h"

namespace tamur {
"""

GETTERS = """// The reader's methods that make accessors. Made from the contract; do not edit.
#pragma once

#include "reader/accessor_maker.h"

namespace tamur {

class AccessorGetters : public AccessorMaker {
 public:
"""


def methods(one: Table) -> str:
    return f"""    HRESULT STDMETHODCALLTYPE {one.count}(LONG* count) noexcept override
    {{
        return Count<{one.record}>(count);
    }}
    HRESULT STDMETHODCALLTYPE {one.at_rank}(LONG rank,
                                            {one.record}* record) noexcept override
    {{
        return AtRank(rank, record);
    }}"""


def accessor_class(one: Accessor) -> str:
    name = "C" + one.stem + ("Tables" if one.further_methods else "")
    base = "Accessor<" + ", ".join([one.interface.name, "IID_" + one.interface.name]
                                   + [table.record for table in one.tables]) + ">"
    return (f"class {name} : public {base} {{\n public:\n    using Accessor::Accessor;\n\n"
            + "\n".join(methods(table) for table in one.tables) + "\n};\n")


def getter(one: Accessor) -> str:
    interface = one.interface.name
    return f"""    HRESULT STDMETHODCALLTYPE {one.getter}({interface}** out) noexcept override
    {{
        return Make<C{one.stem}>(out);
    }}
"""


def main() -> None:
    accessors = read_contract(sys.argv[1]).accessors()
    classes = [CLASSES] + [accessor_class(one) for one in accessors if one.tables]
    getters = GETTERS + "".join(getter(one) for one in accessors) + "};\n"
    for name, text in (("accessor_classes.h", "\n".join(classes) + "\n"),
                       ("accessor_getters.h", getters + "\n")):
        with open(os.path.join(sys.argv[2], name), "w", encoding="utf-8") as file:
            file.write(text + "}  // namespace tamur\n")


if __name__ == "__main__":
    main()
