"""The ctypes declarations against what print_published says, in both directions.

usage: declarations_test.py PRINT_PUBLISHED
"""
import ctypes
import enum
import subprocess
import sys
import uuid
from collections.abc import Iterator

import tamur_com
import tamur_reader

KINDS = {ctypes.c_double: "f", ctypes.c_int8: "i", ctypes.c_int32: "i", ctypes.c_uint8: "u",
         tamur_com.BSTR: "p"}


def declared(base: type) -> list[type]:
    return [one for one in vars(tamur_reader).values()
            if isinstance(one, type) and issubclass(one, base)
            and one.__module__ == tamur_reader.__name__]


def braced(identifier: ctypes.Array) -> str:
    return f"{{{uuid.UUID(bytes_le=bytes(identifier))}}}".upper()


def kind_of(declaration: type) -> str:
    if hasattr(declaration, "_length_"):
        declaration = declaration._type_
    if issubclass(declaration, ctypes.Structure):
        return "r"
    return "p" if hasattr(declaration, "contents") else KINDS[declaration]


def declared_lines() -> Iterator[str]:
    for record in declared(ctypes.Structure):
        yield f"record {record.__name__} {ctypes.sizeof(record)}"
        for name, declaration in record._fields_:
            field = getattr(record, name)
            yield (f"field {record.__name__}.{name} {field.offset} {field.size} "
                   f"{kind_of(declaration)}")
    for enumeration in declared(enum.IntEnum):
        for value in enumeration:
            yield f"value {enumeration.__name__}.{value.name} {value.value}"
    for interface in declared(tamur_com.Unknown):
        base = interface.__base__.__name__.replace("Unknown", "IUnknown")
        yield f"interface {interface.__name__} {base} {braced(interface.IID)}"
        for name, method in vars(interface).items():
            if isinstance(method, tamur_com.Method):
                yield f"method {interface.__name__}.{name} {method.slot}"
    for name, value in vars(tamur_reader).items():
        if name.startswith("CLSID_"):
            yield f"class {name.removeprefix('CLSID_')} {braced(value)}"


def main() -> int:
    output = subprocess.run(sys.argv[1], capture_output=True, text=True, check=True).stdout
    published = set(output.splitlines())
    found = set(declared_lines())
    for line in sorted(published - found):
        print("published, not declared:", line)
    for line in sorted(found - published):
        print("declared, not published:", line)
    print(len(found & published), "lines agree")
    return 0 if published and found == published else 1


if __name__ == "__main__":
    sys.exit(main())
