"""The shared library beside this file, by its C interface (tamur.h)."""
from __future__ import annotations

import ctypes
import os
import sys
from typing import Any, Callable, Optional, Sequence

import numpy as np

from ._errors import ImportRefused

_NAME = "tamur.dll" if sys.platform == "win32" else "libtamur.so"
_OK, _REFUSED, _NO_MEMORY, _WRONG_CALL, _, _NOT_WRITTEN = range(6)


class _Error(ctypes.Structure):
    _fields_ = [("code", ctypes.c_char * 8), ("text", ctypes.c_char * 1016)]


class _ExportOptions(ctypes.Structure):
    _fields_ = [
        ("kind", ctypes.c_char_p),
        ("cases", ctypes.POINTER(ctypes.c_int32)), ("case_count", ctypes.c_uint64),
        ("groups", ctypes.POINTER(ctypes.c_char_p)), ("group_count", ctypes.c_uint64),
        ("replace", ctypes.c_int32),
    ]


class _Table(ctypes.Structure):
    _fields_ = [
        ("rows", ctypes.c_void_p), ("count", ctypes.c_uint64), ("row_size", ctypes.c_uint64),
        ("reals", ctypes.c_void_p), ("real_count", ctypes.c_uint64),
        ("integers", ctypes.c_void_p), ("integer_count", ctypes.c_uint64),
        ("texts", ctypes.c_void_p), ("text_bytes", ctypes.c_uint64),
        ("text_starts", ctypes.c_void_p), ("text_count", ctypes.c_uint64),
    ]


def _load() -> ctypes.CDLL:
    # Its calls run without the interpreter's lock.
    library = ctypes.CDLL(os.path.join(os.path.dirname(os.path.abspath(__file__)), _NAME))
    error = ctypes.POINTER(_Error)
    table = ctypes.POINTER(_Table)
    for name, result, arguments in (
            ("TamurVersion", ctypes.c_char_p, []),
            ("TamurLayout", ctypes.c_char_p, []),
            ("TamurOpen", ctypes.c_int32, [ctypes.c_char_p, ctypes.c_int32,
                                           ctypes.POINTER(ctypes.c_void_p), error]),
            ("TamurClose", None, [ctypes.c_void_p]),
            ("TamurGetTable", ctypes.c_int32, [ctypes.c_void_p, ctypes.c_int32,
                                               ctypes.POINTER(table), error]),
            ("TamurReleaseTable", None, [table]),
            ("TamurDiff", ctypes.c_int32, [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_double,
                                           ctypes.POINTER(ctypes.c_void_p), error]),
            ("TamurExport", ctypes.c_int32, [
                ctypes.c_void_p, ctypes.c_char_p, ctypes.c_char_p, ctypes.POINTER(_ExportOptions),
                ctypes.POINTER(ctypes.c_void_p), error]),
            ("TamurView", ctypes.c_int32, [ctypes.c_void_p, ctypes.c_char_p,
                                           ctypes.POINTER(ctypes.c_void_p), error]),
            ("TamurReleaseText", None, [ctypes.c_void_p]),
            ("TamurRunTool", ctypes.c_int32, [ctypes.c_int32, ctypes.POINTER(ctypes.c_char_p)])):
        function = getattr(library, name)
        function.restype = result
        function.argtypes = arguments
    return library


_library = _load()


def version() -> str:
    return str(_library.TamurVersion().decode())


def layout() -> str:
    return str(_library.TamurLayout().decode())


def _check(status: int, error: _Error, source: str) -> None:
    if status == _OK:
        return
    text = error.text.decode("utf-8", "replace")
    if status == _REFUSED:
        raise ImportRefused(source, error.code.decode(), text)
    if status == _NO_MEMORY:
        raise MemoryError(text)
    if status == _NOT_WRITTEN:
        raise OSError(text)
    raise ValueError(text) if status == _WRONG_CALL else RuntimeError(text)


class _Memory:
    """Memory of the library's that arrays lead into: they keep `owner` alive."""

    def __init__(self, owner: Any, address: int, count: int, type_name: str) -> None:
        self.owner = owner
        self.__array_interface__ = {
            "version": 3, "data": (address, True), "shape": (count,), "typestr": type_name}


class TableMemory:
    """A table of the library's; it goes when no array leads into it any more."""

    def __init__(self, pointer: Any) -> None:
        self._pointer = pointer
        self._release = _library.TamurReleaseTable
        self._texts: Optional[np.ndarray[Any, Any]] = None

    def __del__(self) -> None:
        self._release(self._pointer)

    def _array(self, address: Optional[int], count: int, type_name: str) -> np.ndarray[Any, Any]:
        if not count:
            return np.empty(0, type_name)
        return np.asarray(_Memory(self, address or 0, count, type_name))

    def rows(self, dtype: np.dtype[Any]) -> np.ndarray[Any, Any]:
        table = self._pointer.contents
        if not table.count:
            return np.empty(0, dtype)
        if table.row_size != dtype.itemsize:
            raise RuntimeError("the rows of the library are not those of this package")
        return self._array(table.rows, table.count * dtype.itemsize, "|u1").view(dtype)

    def reals(self) -> np.ndarray[Any, Any]:
        table = self._pointer.contents
        return self._array(table.reals, table.real_count, "<f8")

    def integers(self) -> np.ndarray[Any, Any]:
        table = self._pointer.contents
        return self._array(table.integers, table.integer_count, "<i4")

    def texts(self) -> np.ndarray[Any, Any]:
        """Every text, and None at the end: there the place -1 leads. All parts of a table share
        them."""
        if self._texts is None:
            self._texts = self._decoded_texts()
        return self._texts

    def _decoded_texts(self) -> np.ndarray[Any, Any]:
        table = self._pointer.contents
        texts = np.empty(table.text_count + 1, object)
        data = ctypes.string_at(table.texts, table.text_bytes)
        parts = data.decode("utf-8", "replace").split("\0")[:-1]
        if len(parts) != table.text_count:  # a text with a NUL in it
            starts = self._array(table.text_starts, table.text_count + 1, "<u8").tolist()
            parts = [data[start:end - 1].decode("utf-8", "replace")
                     for start, end in zip(starts, starts[1:])]
        texts[:-1] = parts
        return texts


class ModelHandle:
    """A model of the library's."""

    def __init__(self, path: str, check: bool, source: str) -> None:
        self._close = _library.TamurClose
        self._model = ctypes.c_void_p()
        error = _Error()
        _check(_library.TamurOpen(path.encode("utf-8"), int(check), ctypes.byref(self._model),
                                  ctypes.byref(error)), error, source)

    def __del__(self) -> None:
        self._close(self._model)

    def table(self, number: int) -> TableMemory:
        table = ctypes.POINTER(_Table)()
        error = _Error()
        _check(_library.TamurGetTable(self._model, number, ctypes.byref(table),
                                      ctypes.byref(error)), error, "")
        return TableMemory(table)

    def diff(self, after: ModelHandle, tolerance: float) -> str:
        return _text(lambda text, error: _library.TamurDiff(
            self._model, after._model, tolerance, text, error))

    def export(self, name: str, output: str, kind: Optional[str], cases: Sequence[int],
               groups: Sequence[str], replace: bool) -> str:
        options = _ExportOptions(
            kind.encode("utf-8") if kind else None,
            (ctypes.c_int32 * len(cases))(*cases), len(cases),
            (ctypes.c_char_p * len(groups))(*(group.encode("utf-8") for group in groups)),
            len(groups), replace)
        return _text(lambda text, error: _library.TamurExport(
            self._model, _encoded(name), _encoded(output), ctypes.byref(options), text, error))

    def view(self, name: str) -> str:
        return _text(lambda text, error: _library.TamurView(
            self._model, _encoded(name), text, error))


def _encoded(text: str) -> bytes:
    return text.encode("utf-8", "replace")


def _text(call: Callable[[Any, Any], Any]) -> str:
    """What the library writes into a text of its own."""
    text = ctypes.c_void_p()
    error = _Error()
    _check(call(ctypes.byref(text), ctypes.byref(error)), error, "")
    try:
        return ctypes.string_at(text.value or 0).decode("utf-8", "replace")
    finally:
        _library.TamurReleaseText(text)


def run_tool(arguments: Sequence[str]) -> int:
    encoded = [argument.encode("utf-8", "surrogateescape") for argument in arguments]
    return int(_library.TamurRunTool(len(encoded), (ctypes.c_char_p * len(encoded))(*encoded)))
