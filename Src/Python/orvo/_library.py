"""The C library, as <Orvo/orvo.h> and <Orvo/orvo_widgets.h> declare it."""

from __future__ import annotations

import ctypes
import functools
import os
import pathlib
from collections.abc import Sequence
from ctypes import POINTER, byref, c_char, c_char_p, c_double, c_int16, c_int32, c_int64
from ctypes import c_size_t, c_uint32, c_void_p
from ctypes.util import find_library
from typing import Any

from ._core import Argument, Error, Kind, Value, samples

_NONE, _BOOLEAN, _INTEGER, _LONG, _NUMBER, _STRING, _ARRAY = range(7)


class _Sized(ctypes.Structure):
    """Begins with its size."""

    def __init__(self) -> None:
        super().__init__(ctypes.sizeof(self))


class Failure(_Sized):
    _fields_ = [("size", c_uint32), ("number", c_int32), ("text", c_char * 120)]


class Options(_Sized):
    _fields_ = [("size", c_uint32), ("ports", c_int32)]


class _String(ctypes.Structure):
    _fields_ = [("text", c_void_p), ("length", c_size_t)]


class _Array(ctypes.Structure):
    _fields_ = [
        ("elements", c_void_p),
        ("count", c_size_t),
        ("lower", c_int32),
        ("dimensions", c_int32),
    ]


class _Alternatives(ctypes.Union):
    _fields_ = [
        ("boolean", c_int16),
        ("integer", c_int16),
        ("long_integer", c_int32),
        ("number", c_double),
        ("string", _String),
        ("array", _Array),
    ]


class CValue(_Sized):
    _fields_ = [("size", c_uint32), ("type", c_int32), ("held", _Alternatives)]
    held: _Alternatives
    type: int
    kept: Any  # what it points to

    def take(self, value: Argument) -> None:
        if isinstance(value, bool):
            self.type, self.held.boolean = _BOOLEAN, -value
        elif isinstance(value, int):
            self._take_number(value)
        elif isinstance(value, float):
            self.type, self.held.number = _NUMBER, value
        elif isinstance(value, str):
            self.kept = value.encode("utf-8", "replace")
            self.type, self.held.string.length = _STRING, len(self.kept)
            self.held.string.text = ctypes.cast(c_char_p(self.kept), c_void_p)
        else:
            self._take_samples(value)

    def _take_number(self, value: int) -> None:
        if -0x8000 <= value <= 0x7FFF:
            self.type, self.held.integer = _INTEGER, value
        elif -0x80000000 <= value <= 0x7FFFFFFF:
            self.type, self.held.long_integer = _LONG, value
        else:
            self.take(float(value))

    def _take_samples(self, value: Sequence[int]) -> None:
        self.kept = samples(value)
        address, count = self.kept.buffer_info()
        self.type = _ARRAY
        self.held.array = _Array(address, count, 1, 1)

    def value(self) -> Value:
        if self.type == _STRING:
            string = self.held.string
            return ctypes.string_at(string.text, string.length).decode() if string.length else ""
        names = {_BOOLEAN: "boolean", _INTEGER: "integer", _LONG: "long_integer", _NUMBER: "number"}
        if self.type not in names:
            return None
        number: int | float = getattr(self.held, names[self.type])
        return bool(number) if self.type == _BOOLEAN else number


EventHandler = ctypes.CFUNCTYPE(None, c_void_p, c_int32, c_void_p, c_size_t)
ErrorHandler = ctypes.CFUNCTYPE(None, c_void_p, c_int32, c_char_p)

# All but the error, with which each ends.
_FUNCTIONS: dict[str, list[Any]] = {
    "orvo_create": [POINTER(Options), POINTER(c_void_p)],
    "orvo_destroy": [c_void_p],
    "orvo_invoke": [c_void_p, c_int32, c_int32, POINTER(CValue), c_size_t, POINTER(CValue)],
    "orvo_subscribe": [c_void_p, c_int32, EventHandler, c_void_p, POINTER(c_uint32)],
    "orvo_unsubscribe": [c_void_p, c_uint32],
    "orvo_on_error": [c_void_p, ErrorHandler, c_void_p],
    "orvo_advance": [c_void_p, c_int64],
    "orvo_perform": [c_void_p, c_int32, c_char_p, c_int32, c_char_p],
    "orvo_window_create": [POINTER(Options), POINTER(c_void_p)],
    "orvo_window_set_title": [c_void_p, c_char_p],
    "orvo_window_set_zoom": [c_void_p, c_double],
    "orvo_window_show": [c_void_p],
}


class Library:
    def __init__(self, name: str) -> None:
        self.functions = ctypes.CDLL(name)
        self.functions.orvo_argument.restype = POINTER(CValue)
        self.functions.orvo_argument.argtypes = [c_void_p, c_size_t]
        self.functions.orvo_clear.argtypes = [POINTER(CValue)]

    def call(self, function: str, *arguments: Any) -> None:
        """Raises the error that the function returns."""
        called = self.functions[function]
        called.argtypes = [*_FUNCTIONS[function], POINTER(Failure)]
        failure = Failure()
        if called(*arguments, byref(failure)):
            raise Error(failure.number, failure.text.decode())

    def invoke(self, panel: c_void_p, member: int, kind: Kind, given: Sequence[Argument]) -> Value:
        values = [CValue() for _ in given]  # these keep what they point to
        for value, argument in zip(values, given):
            value.take(argument)
        arguments = (CValue * len(values))(*values)
        result = CValue()
        self.call("orvo_invoke", panel, member, kind, arguments, len(values), byref(result))
        try:
            return result.value()
        finally:
            self.functions.orvo_clear(byref(result))

    def values(self, arguments: int, count: int) -> list[Value]:
        get = self.functions.orvo_argument
        return [get(arguments, i).contents.value() for i in range(count)]


def _beside(name: str) -> str | None:
    """Where it is installed with this package: PREFIX/lib/python3/dist-packages/orvo."""
    libraries = pathlib.Path(__file__).resolve().parents[3]
    for pattern in (f"lib{name}.so*", f"*/lib{name}.so*"):
        for found in sorted(libraries.glob(pattern)):
            return str(found)
    return None


@functools.lru_cache(maxsize=None)
def library(name: str) -> Library:
    """The library of this name: what ORVO_LIBRARY names, beside this package, or the system's."""
    found = os.environ.get("ORVO_LIBRARY") or _beside(name) or find_library(name)
    if not found:
        raise ImportError(f"lib{name} is not installed; ORVO_LIBRARY may say where it is")
    return Library(found)
