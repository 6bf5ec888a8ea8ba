"""The contract as ctypes declarations."""
from contract import Contract, Field, Interface, Method

HEADER = '''"""The records, interfaces and identifiers of TAMUR Reader.

Made from the contract; do not edit.

Strings and blocks in a record are the host's: Component.free frees them. The strings in
ElemLabels.tabLabels are lent and live as long as the reader.
"""
from ctypes import POINTER, Structure, c_double, c_int8, c_int32, c_uint8
from enum import IntEnum

from tamur_com import BSTR, Method, Unknown, identifier
'''

TYPES = {
    "char": "c_int8",
    "unsigned char": "c_uint8",
    "int": "c_int32",
    "long": "c_int32",  # 32 bits on every system
    "double": "c_double",
}
UNKNOWN_SLOTS = 3


class _Writer:
    def __init__(self, contract: Contract) -> None:
        self.contract = contract
        self.types = TYPES | {one.name: "c_int32" for one in contract.enumerations}

    def type(self, name: str) -> str:
        return self.types.get(name, name)

    def field(self, field: Field) -> str:
        kind = self.type(field.type)
        if field.is_pointer:
            kind = f"POINTER({kind})"
        if field.length:
            kind = f"{kind} * {field.length}"
        note = f"  # {field.count} of them" if field.count else ""
        return f'        ("{field.name}", {kind}),{note}\n'

    def method(self, slot: int, method: Method) -> str:
        arguments = [str(slot)]
        for parameter in method.parameters:
            kind = self.type(parameter.type)
            if parameter.direction == "out":
                arguments.append(f"returns={kind}")
            else:
                arguments.append(f"POINTER({kind})" if parameter.stars else kind)
        return f"    {method.name} = Method({', '.join(arguments)})\n"

    def interface(self, interface: Interface) -> str:
        base = "Unknown" if interface.base == "IUnknown" else interface.base
        first = UNKNOWN_SLOTS + len(self.contract.inherited(interface))
        return (f'class {interface.name}({base}):\n    IID = identifier("{interface.iid}")\n'
                + "".join(self.method(first + place, method)
                          for place, method in enumerate(interface.methods)))


def python_bindings(contract: Contract) -> str:
    writer = _Writer(contract)
    parts = [HEADER]
    for enumeration in contract.enumerations:
        parts.append(f"class {enumeration.name}(IntEnum):\n"
                     + "".join(f"    {name} = {value}\n" for name, value in enumeration.values))
    for record in contract.records:
        parts.append(f"class {record.name}(Structure):\n    _fields_ = [\n"
                     + "".join(map(writer.field, record.fields)) + "    ]\n")
    parts.extend(map(writer.interface, contract.interfaces))
    parts.append("".join(f'CLSID_{one.name} = identifier("{one.clsid}")\n'
                         for one in contract.coclasses)
                 + f'LIBID_TAMURREADERLib = identifier("{contract.library_id}")\n')
    return "\n\n".join(parts)
