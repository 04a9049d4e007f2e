"""The shared object, its exports as ctypes functions, and its statuses as exceptions."""

import ctypes
import functools
import json
import os
import re
import warnings
from pathlib import Path


class RnxError(Exception):
    """A call was refused. `status` is the number, `name` what it is called."""

    def __init__(self, status, name, function):
        super().__init__(f"{name} ({status}) from {function}")
        self.status, self.name, self.function = status, name, function


class RnxWarning(UserWarning):
    """A call was done in a defined, degraded way."""


def _structure(name, kind, fields):
    return type(name, (ctypes.Structure,), {"_fields_": [(field, kind) for field in fields.split()]})


Size = _structure("RnxiSize", ctypes.c_int32, "width height")
SizeL = _structure("RnxiSizeL", ctypes.c_int64, "width height")
Rect = _structure("RnxiRect", ctypes.c_int32, "x y width height")
Point = _structure("RnxiPoint", ctypes.c_int32, "x y")
PointL = _structure("RnxiPointL", ctypes.c_int64, "x y")


class LibraryVersion(ctypes.Structure):
    _fields_ = [(name, ctypes.c_int32) for name in "major minor major_build build".split()] + [
        ("target_cpu", ctypes.c_char * 4),
        ("name", ctypes.c_char_p),
        ("version", ctypes.c_char_p),
        ("build_date", ctypes.c_char_p),
    ]


TYPES = {
    "int": ctypes.c_int, "Rnx8u": ctypes.c_uint8, "Rnx8s": ctypes.c_int8, "Rnx16u": ctypes.c_uint16,
    "Rnx16s": ctypes.c_int16, "Rnx32u": ctypes.c_uint32, "Rnx32s": ctypes.c_int32, "Rnx64s": ctypes.c_int64,
    "Rnx32f": ctypes.c_float, "Rnx64f": ctypes.c_double, "RnxStatus": ctypes.c_int32, "RnxiSize": Size,
    "RnxiRect": Rect, "RnxiPoint": Point, "RnxiPointL": PointL, "RnxiBorderType": ctypes.c_uint32,
    "RnxiInterpolationType": ctypes.c_int, "RnxDataType": ctypes.c_int, "void": None,
}  # fmt: skip


def _type(text):
    return ctypes.c_void_p if text.endswith("*") else TYPES[text]


@functools.cache
def _library():
    return ctypes.CDLL(os.environ.get("RNXIP_LIBRARY", "librnxip.so.2021"))


@functools.cache
def _table():
    path = os.environ.get("RNXIP_TABLE", Path(__file__).with_name("table.json"))
    return json.loads(Path(path).read_text())


@functools.cache
def _names():
    return {number: name for name, number in _table()["statuses"].items()}


def families():
    """Family -> its exports, as the table describes them."""
    found = {}
    for export in _table()["exports"]:
        found.setdefault(export["family"], []).append(export)
    return found


def snake(name):
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()


@functools.cache
def function(name):
    for export in _table()["exports"]:
        if export["name"] == name:
            found = _library()[name]
            found.argtypes = [_type(p["type"]) for p in export["parameters"]]
            found.restype = _type(export["returns"])
            return found
    raise AttributeError(f"no export is called {name}")


def call(name, *arguments):
    """Calls an export that returns a status; an error becomes an exception, a warning a warning."""
    status = function(name)(*arguments)
    if status < 0:
        raise RnxError(status, _names().get(status, "unknown status"), name)
    if status > 0:
        warnings.warn(f"{_names().get(status, 'unknown status')} ({status}) from {name}", RnxWarning, stacklevel=4)
    return status


class _Raw:
    """Exports by their own names, with plain ctypes arguments; they return what C functions return."""

    def __getattr__(self, name):
        return function(name)

    def __dir__(self):
        return [export["name"] for export in _table()["exports"]]


raw = _Raw()


def version():
    """The version record of the library as a dictionary."""
    record = LibraryVersion.from_address(raw.rnxiGetLibVersion())
    text = {name: getattr(record, name).decode() for name in ("name", "version", "build_date")}
    return {"major": record.major, "minor": record.minor, "build": record.build, **text}
