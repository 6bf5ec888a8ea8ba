"""The contract as C# declarations."""
from contract import Contract, Enumeration, Field, Interface, Method, Parameter, Record

HEADER = """// The records, interfaces and identifiers of TAMUR Reader, for 64-bit hosts.
// Made from the contract; do not edit.
//
// Strings and arrays of a record are IntPtr: a string is read with Marshal.PtrToStringBSTR, null
// means absent. They are the host's: Free() of the record frees them. The strings in
// TMRElementLabels.tabLabels are lent, live as long as the reader, and are not freed.
//
// Results are codes; Marshal.ThrowExceptionForHR turns a failure into an exception.
using System;
using System.Runtime.InteropServices;

namespace TAMURReader
{
"""

TYPES = {
    "char": "sbyte",
    "unsigned char": "byte",
    "int": "int",
    "long": "int",  # 32 bits, unlike a long of C#
    "double": "double",
    "BSTR": "IntPtr",
}


def _type(name: str) -> str:
    return TYPES.get(name, name)


def _enumeration(enumeration: Enumeration) -> str:
    return (f"    public enum {enumeration.name}\n    {{\n"
            + "".join(f"        {name} = {value},\n" for name, value in enumeration.values)
            + "    }\n")


def _field(field: Field) -> str:
    if field.is_pointer:
        return (f"        public IntPtr {field.name};"
                f"  // {field.count} of {_type(field.type)}\n")
    if field.length:
        return (f"        [MarshalAs(UnmanagedType.ByValArray, SizeConst = {field.length})]\n"
                f"        public {_type(field.type)}[] {field.name};\n")
    return f"        public {_type(field.type)} {field.name};\n"


def _free(field: Field, owners: set[str]) -> str:
    if field.is_pointer:
        return f"            Marshal.FreeCoTaskMem({field.name});\n"
    if field.type == "BSTR":
        return f"            Marshal.FreeBSTR({field.name});\n"
    return f"            {field.name}.Free();\n" if field.type in owners else ""


def _record(record: Record, owners: set[str]) -> str:
    """Notes in `owners` whether the record holds memory."""
    frees = "".join(_free(field, owners) for field in record.fields)
    method = ""
    if frees:
        owners.add(record.name)
        method = ("\n        public void Free()\n        {\n"
                  f"{frees}            this = default({record.name});\n        }}\n")
    return (f"    [StructLayout(LayoutKind.Sequential)]\n    public struct {record.name}\n    {{\n"
            + "".join(map(_field, record.fields)) + method + "    }\n")


def _parameter(parameter: Parameter) -> str:
    kind = _type(parameter.type)
    if parameter.direction == "in":
        if parameter.type == "BSTR":
            kind = "[MarshalAs(UnmanagedType.BStr)] string"
        return f"{kind} {parameter.name}"
    if parameter.direction == "out":
        return f"out {kind} {parameter.name}"
    if parameter.name.startswith("tab"):  # the contract's way to name an array
        return f"[In, Out] {kind}[] {parameter.name}"
    return f"ref {kind} {parameter.name}"


def _method(method: Method) -> str:
    parameters = ", ".join(map(_parameter, method.parameters))
    return f"        [PreserveSig]\n        int {method.name}({parameters});\n"


def _interface(contract: Contract, interface: Interface) -> str:
    # Inheritance adds no slots here: inherited methods are repeated instead.
    methods = contract.inherited(interface) + interface.methods
    return (f'    [ComImport, Guid("{interface.iid}"),\n'
            "     InterfaceType(ComInterfaceType.InterfaceIsIUnknown)]\n"
            f"    public interface {interface.name}\n    {{\n"
            + "\n".join(map(_method, methods)) + "    }\n")


def _identifiers(contract: Contract) -> str:
    return ("    // Only the reader and the surface accessor can be created.\n"
            "    public static class ClassIds\n    {\n"
            + "".join(f'        public static readonly Guid {one.name} =\n'
                      f'            new Guid("{one.clsid}");\n' for one in contract.coclasses)
            + "    }\n")


def csharp_bindings(contract: Contract) -> str:
    owners: set[str] = set()
    declarations = [_enumeration(one) for one in contract.enumerations]
    declarations += [_record(one, owners) for one in contract.records]
    declarations += [_interface(contract, one) for one in contract.interfaces]
    declarations.append(_identifiers(contract))
    return HEADER + "\n".join(declarations) + "}\n"
