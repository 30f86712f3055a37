"""Reads instances into plain values, by the layout of the schema instead of a call for each member."""

from __future__ import annotations

import functools
import itertools
import struct
from typing import Any, Callable, Iterator, Mapping, Optional

from . import _schema
from ._address import text_of
from ._native import ffi

# Takes what belongs to a member from the unpacked fields, and returns the value of the member.
Step = Callable[[Iterator[Any]], Any]
# The members to read, those of a member that is a record or an array below it; None: all.
Wanted = Optional[Mapping[str, Any]]

_VARIANT = 8  # offset in every object; negative: the object has no body
_BOOLEAN, _ENUMERATION = 11, 12  # offsets of the value in the object
_INTEGERS = {1: "B", 2: "H", 4: "I", 8: "Q"}
_ADDRESS = struct.Struct("=b2xBBxH4I")  # from the variant on


class Plan:
    """How to read a record. The values are those of Record.to_dict(), with as_json those of Record.to_json(). With
    is_lazy, the elements of an array are read one by one while it is iterated over, so they must not have moved."""

    def __init__(self, record: str, wanted: Wanted = None, as_json: bool = False, is_lazy: bool = False) -> None:
        self._as_json, self._is_lazy = as_json, is_lazy
        self._format, self._end, self._fields = ["="], 0, 0
        self._size: int = _schema.LAYOUTS[record][0]
        self._step = self._record(record, 0, wanted)
        self._unpack = struct.Struct("".join([*self._format, f"{self._size - self._end}x"]))

    def read(self, instance: Any) -> Any:
        """Reads a C object. The values do not depend on it any more. None: it has no body."""
        return self._step(iter(self._unpack.unpack(ffi.buffer(ffi.cast("char *", instance), self._size))))

    def _elements(self, count: int, block: int) -> Iterator[Any]:
        data, step = ffi.buffer(ffi.cast("char *", block), count * self._size), self._step
        return (step(iter(fields)) for fields in self._unpack.iter_unpack(data))

    def _array(self, count: int, block: int) -> Any:
        elements = _Elements(self, count if block else 0, block)
        return elements if self._is_lazy else list(elements)

    def _field(self, offset: int, code: str) -> None:
        """Unpacks a field. The offsets increase."""
        self._format += [f"{offset - self._end}x", code]
        self._end = offset + struct.calcsize("=" + code)
        self._fields += 1

    def _record(self, record: str, base: int, wanted: Wanted) -> Step:
        self._field(base + _VARIANT, "b")
        before, steps, counted = self._fields, [], (0, "")
        for (_, name, kind, of, _), offset in zip(_schema.RECORDS[record][2], _schema.LAYOUTS[record][1]):
            if " " in kind:  # of the array or string that follows
                counted = base + offset, _integer(kind.rpartition(" ")[2])
            elif wanted is None or name in wanted:
                below = None if wanted is None else wanted[name]
                steps.append((name, self._member(kind, of, base + offset, counted, below)))
        fields = self._fields - before

        def read(values: Iterator[Any]) -> Any:
            if next(values) < 0:
                for _ in itertools.islice(values, fields):
                    pass
                return None
            return {name: step(values) for name, step in steps}

        return read

    def _member(self, kind: str, of: str, offset: int, counted: tuple[int, str], wanted: Wanted) -> Step:
        if kind == "record":
            return self._record(of, offset, wanted)
        if kind in ("array", "string"):
            self._field(*counted)
            self._field(offset, "Q")
            if kind == "string":
                text = _json_text if self._as_json else _text
                return lambda values: text(next(values), next(values))
            array = Plan(of, wanted, self._as_json, self._is_lazy)._array
            return lambda values: array(next(values), next(values))
        if kind == "address":
            self._field(offset + _VARIANT, f"{_ADDRESS.size}s")
            return lambda values: _address(next(values))
        if kind == "boolean":
            self._field(offset + _BOOLEAN, "B")
            return lambda values: next(values) != 0
        if kind == "enumeration":
            self._field(offset + _ENUMERATION, "I")
            names = dict(enumerate(_schema.ENUMERATIONS[of][2]))
            return lambda values: names.get(value := next(values), value)  # frames can contain any number
        self._field(offset, _integer(kind))
        if self._as_json and _schema.INTEGERS[kind][0] > 4:
            return lambda values: str(next(values))
        return next


class _Elements:
    def __init__(self, plan: Plan, count: int, block: int) -> None:
        self._plan, self._count, self._block = plan, count, block

    def __len__(self) -> int:
        return self._count

    def __iter__(self) -> Iterator[Any]:
        return self._plan._elements(self._count, self._block) if self._count else iter(())


def _integer(kind: str) -> str:
    return _INTEGERS[_schema.INTEGERS[kind][0]]


def _address(raw: bytes) -> Any:
    variant, af, prefix_len, scope, *word = _ADDRESS.unpack(raw)
    return text_of(af, prefix_len, scope, word) if variant >= 0 else None


def _bytes(size: int, characters: int) -> bytes:
    if size == 0 or characters == 0:
        return b""
    text: bytes = ffi.buffer(ffi.cast("char *", characters), size)[:]
    return text


def _text(size: int, characters: int) -> str:
    return _bytes(size, characters).decode(errors="surrogateescape")


def _json_text(size: int, characters: int) -> str | dict[str, str]:
    text = _bytes(size, characters)
    try:
        return text.decode()
    except UnicodeDecodeError:
        return {"bytes": text.hex()}


@functools.lru_cache(maxsize=None)
def plan(record: str, as_json: bool = False) -> Plan:
    """The plan that reads all members of a record."""
    return Plan(record, None, as_json)
