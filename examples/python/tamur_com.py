"""What a Python host needs of COM, for 64-bit Windows and Linux.

tamur_reader.py, which is made from the contract, declares the records and interfaces with it.
"""
import contextlib
import ctypes
import sys
import uuid

IS_WINDOWS = sys.platform == "win32"
E_FAIL = -0x7FFFBFFB  # 0x80004005


class ComError(Exception):
    def __init__(self, what: str, result: int) -> None:
        super().__init__(f"{what}: 0x{result & 0xFFFFFFFF:08X}")
        self.result = result


def identifier(text: str) -> ctypes.Array:
    """A class or interface identifier as it lies in memory."""
    return (ctypes.c_ubyte * 16)(*uuid.UUID(text).bytes_le)


class BSTR(ctypes.c_void_p):
    """A string of the component's: UTF-16, its length in bytes in the four bytes before it."""

    def __str__(self) -> str:
        if not self.value:
            return ""
        length = ctypes.c_uint32.from_address(self.value - 4).value
        return ctypes.string_at(self.value, length).decode("utf-16-le", "surrogatepass")


class Method:
    """A method of an interface, by its place in the table of functions.

    `takes` are the types of the parameters, `returns` that of the last one where the method
    writes its answer: the call returns it. A result that says failure is raised as ComError.
    """

    def __init__(self, slot: int, *takes, returns=None) -> None:
        self.slot, self.takes, self.returns = slot, takes, returns

    def __set_name__(self, owner: type, name: str) -> None:
        self.name = name

    def __get__(self, instance, owner=None):
        if instance is None:
            return self
        return lambda *arguments: self._call(instance, arguments)

    def _call(self, instance, arguments):
        if len(arguments) != len(self.takes):
            raise TypeError(f"{self.name} takes {len(self.takes)} arguments")
        if self.returns is None:
            self._check(instance.call(self.slot, self.takes, arguments))
            return None
        is_interface = issubclass(self.returns, Unknown)
        answer = (ctypes.c_void_p if is_interface else self.returns)()
        self._check(instance.call(self.slot, (*self.takes, ctypes.c_void_p),
                                  (*arguments, ctypes.addressof(answer))))
        if is_interface:
            return self.returns(answer.value)
        return answer.value if isinstance(answer, ctypes.c_int32) else answer

    def _check(self, result: int) -> None:
        if result < 0:
            raise ComError(self.name, result)


class Unknown:
    """Holds one reference to an object; used in a `with` statement it releases it at the end."""

    IID = identifier("00000000-0000-0000-C000-000000000046")

    def __init__(self, pointer: int) -> None:
        self.pointer = pointer

    def call(self, slot: int, types, arguments) -> int:
        table = ctypes.c_void_p.from_address(self.pointer).value
        address = ctypes.c_void_p.from_address(table + slot * ctypes.sizeof(ctypes.c_void_p))
        # 64-bit Windows has one calling convention, so there CFUNCTYPE is right too.
        function = ctypes.CFUNCTYPE(ctypes.c_int32, ctypes.c_void_p, *types)(address.value)
        return function(self.pointer, *arguments)

    def release(self) -> None:
        if self.pointer:
            self.call(2, (), ())
            self.pointer = None

    def __enter__(self):
        return self

    def __exit__(self, *_) -> None:
        self.release()


class ClassFactory(Unknown):
    IID = identifier("00000001-0000-0000-C000-000000000046")


class Component:
    """The loaded component, and the functions for what records hold."""

    def __init__(self, path: str) -> None:
        self._library = ctypes.CDLL(path)
        strings = ctypes.CDLL("oleaut32") if IS_WINDOWS else self._library
        memory = ctypes.CDLL("ole32") if IS_WINDOWS else self._library
        self._allocate_string = strings.SysAllocStringLen
        self._allocate_string.argtypes = [ctypes.c_char_p, ctypes.c_uint]
        self._allocate_string.restype = ctypes.c_void_p
        self._free_string = strings.SysFreeString
        self._free_string.argtypes = [ctypes.c_void_p]
        self._free_string.restype = None
        self._free_block = memory.CoTaskMemFree
        self._free_block.argtypes = [ctypes.c_void_p]
        self._free_block.restype = None

    def create(self, class_id: ctypes.Array, interface: type):
        """A new object of a creatable class."""
        answer = ctypes.c_void_p()
        result = self._library.DllGetClassObject(class_id, ClassFactory.IID, ctypes.byref(answer))
        if result < 0:
            raise ComError("DllGetClassObject", result)
        with ClassFactory(answer.value) as factory:
            made = ctypes.c_void_p()
            result = factory.call(3, (ctypes.c_void_p,) * 3,
                                  (None, ctypes.addressof(interface.IID), ctypes.addressof(made)))
        if result < 0:
            raise ComError("CreateInstance", result)
        return interface(made.value)

    @contextlib.contextmanager
    def string(self, text: str):
        """A string for a call, freed after it."""
        encoded = text.encode("utf-16-le", "surrogatepass")
        string = BSTR(self._allocate_string(encoded, len(encoded) // 2))
        try:
            yield string
        finally:
            self._free_string(string)

    def free(self, record: ctypes.Structure) -> None:
        """Frees what a record holds: its strings and its blocks, not the labels in a block."""
        for name, kind, *_ in record._fields_:
            value = getattr(record, name)
            if kind is BSTR:
                self._free_string(value)
            elif issubclass(kind, ctypes.Structure):
                self.free(value)
            elif hasattr(kind, "contents"):  # a pointer
                self._free_block(ctypes.cast(value, ctypes.c_void_p))
        ctypes.memset(ctypes.addressof(record), 0, ctypes.sizeof(record))

    def records(self, count, at_rank):
        """The records of a table, each freed when the next one is asked for."""
        for rank in range(count()):
            record = at_rank(rank)
            try:
                yield record
            finally:
                self.free(record)
