"""The classes of the schema, created from its tables. records.pyi declares them for type checkers and editors."""

from __future__ import annotations

import enum
from typing import Any, Mapping

from . import _schema
from ._address import AddressLike
from ._base import Array, Message, Record, emptied, expect, read_address, write_address
from ._native import ffi, lib


class Member:
    """The descriptor of a member. The kinds of members derive from it."""

    tracked = True

    def __init__(self, name: str, meaning: str) -> None:
        self.name, self.__doc__ = name, meaning

    def __get__(self, record: Any, owner: Any = None) -> Any:
        return self if record is None else self.read(record)

    def __set__(self, record: Any, value: Any) -> None:
        self.write(record, value)

    def read(self, record: Record) -> Any:
        return record._call(f"{self.name}_get_value")

    def write(self, record: Record, value: Any) -> None:
        record._call(f"{self.name}_set_value", value)

    def state(self, record: Record) -> int:
        return int(record._call(f"{self.name}_state_flag_get"))

    def set_state(self, record: Record, value: int) -> None:
        record._call(f"{self.name}_state_flag_set", value)


class IntegerMember(Member):
    def __init__(self, name: str, meaning: str, size: int, most: int) -> None:
        super().__init__(name, meaning)
        self.most, self.is_text_in_json = most, size > 4

    def write(self, record: Record, value: Any) -> None:
        if self.is_text_in_json and isinstance(value, str):
            value = int(value)
        if value > self.most:
            raise OverflowError(f"{self.name} is at most {self.most}")
        super().write(record, value)


class CountMember(Member):
    tracked = False

    def write(self, record: Record, value: Any) -> None:
        raise AttributeError(f"{self.name} is read-only: it follows from the array or string")

    state = set_state = None  # type: ignore[assignment]


class BooleanMember(Member):
    def read(self, record: Record) -> bool:
        return bool(super().read(record))

    def write(self, record: Record, value: Any) -> None:
        super().write(record, 1 if value else 0)


class EnumerationMember(Member):
    def __init__(self, name: str, meaning: str, enumeration: Any, names: list[str]) -> None:
        super().__init__(name, meaning)
        self.enumeration, self.names = enumeration, names

    def read(self, record: Record) -> Any:
        value = super().read(record)
        return self.enumeration(value) if value < len(self.names) else value  # frames can contain any number

    def write(self, record: Record, value: Any) -> None:
        if isinstance(value, str):
            value = self.names.index(value)
        super().write(record, int(value))


class AddressMember(Member):
    def read(self, record: Record) -> Any:
        return read_address(record, self.name)

    def write(self, record: Record, value: AddressLike) -> None:
        write_address(record, self.name, value)


class StringMember(Member):
    def __init__(self, name: str, meaning: str, length: str, most: int) -> None:
        super().__init__(name, meaning)
        self.length, self.most = length, most

    def read(self, record: Record) -> str:
        size = record._call(f"{self.length}_get_value") + 1
        buffer = ffi.new("char[]", size)
        record._call(f"{self.name}_get", buffer, size)
        text: bytes = ffi.string(buffer)
        return text.decode(errors="surrogateescape")

    def write(self, record: Record, value: Any) -> None:
        is_json = isinstance(value, Mapping)  # what is not UTF-8
        text = bytes.fromhex(value["bytes"]) if is_json else value.encode(errors="surrogateescape")
        if b"\0" in text:  # the C function would store what precedes it
            raise ValueError(f"{self.name} cannot contain a NUL character")
        if len(text) > self.most:
            raise OverflowError(f"{self.name} holds at most {self.most} bytes")
        record._call(f"{self.name}_set", text, len(text))


class RecordMember(Member):
    def __init__(self, name: str, meaning: str, record: type[Record]) -> None:
        super().__init__(name, meaning)
        self.record = record

    def read(self, record: Record) -> Any:
        name = f"{self.name}_get"
        return self.record._borrowed(record._handle, lambda: record._call(name))

    def write(self, record: Record, value: Any) -> None:
        expect(self.record, value)
        copy = value.copy(on=record._handle)
        former = emptied(self.read(record))
        record._call(f"{self.name}_set", copy.native)
        del former


class ArrayMember(Member):
    def __init__(self, name: str, meaning: str, record: type[Record], counted_by: str, most: int) -> None:
        super().__init__(name, meaning)
        self.record, self.counted_by, self.most = record, counted_by, most

    def read(self, record: Record) -> Any:
        return Array(record, self)

    def write(self, record: Record, value: Any) -> None:
        Array(record, self)[:] = value

    def state(self, record: Record) -> int:
        return int(record._call(f"{self.name}_state_flag_whole_get"))

    def set_state(self, record: Record, value: int) -> None:
        record._call(f"{self.name}_state_flag_whole_set", value)


_made: dict[str, Any] = {}


def _members(rows: list[tuple[str, str, str, str, str]]) -> dict[str, Member]:
    members: dict[str, Member] = {}
    before, most = "", 0
    for attribute, name, kind, of, meaning in rows:
        if kind.startswith(("count", "length")):
            member: Member = CountMember(name, meaning)
        elif kind == "boolean":
            member = BooleanMember(name, meaning)
        elif kind == "enumeration":
            member = EnumerationMember(name, meaning, _made[of], _schema.ENUMERATIONS[of][2])
        elif kind == "address":
            member = AddressMember(name, meaning)
        elif kind == "string":
            member = StringMember(name, meaning, before, most)
        elif kind == "record":
            member = RecordMember(name, meaning, _made[of])
        elif kind == "array":
            member = ArrayMember(name, meaning, _made[of], before, most)
        elif kind in _schema.INTEGERS:
            member = IntegerMember(name, meaning, *_schema.INTEGERS[kind])
        else:
            raise NotImplementedError(f"members of kind {kind} are not supported")
        members[attribute] = member
        before, most = name, _schema.INTEGERS.get(kind.rpartition(" ")[2], (0, 0))[1]
    return members


for _name, (_class, _meaning, _names, _short) in _schema.ENUMERATIONS.items():
    _made[_name] = enum.IntEnum(_class, {short: at for at, short in enumerate(_short)}, module=__name__)
    _made[_name].__doc__ = _meaning
for _name, (_class, _meaning, _rows) in _schema.RECORDS.items():
    _fields = _members(_rows)
    _owns = any(
        isinstance(member, (ArrayMember, StringMember))
        or isinstance(member, RecordMember) and member.record.owns_blocks
        for member in _fields.values()
    )
    _doc = f"{_meaning}\n\nThe constructor takes members by name, and the handle as on. Record documents the methods."
    _content = {**_fields, "record_name": _name, "members": _fields, "owns_blocks": _owns, "__doc__": _doc}
    _made[_name] = type(_class, (Record,), {**_content, "__module__": __name__})
for _name, (_class, _payload) in _schema.MESSAGES.items():
    _luid = bytes(ffi.buffer(getattr(lib, f"message_{_name}_luid"), 16))
    _content = {"message_name": _name, "payload_type": _made[_payload], "luid": _luid, "__module__": __name__}
    _made[_name] = type(_class, (Message,), {**_content, "__doc__": f"Carries one {_payload}."})

MESSAGES = {made.luid: made for made in _made.values() if issubclass(made, Message)}
globals().update({made.__name__: made for made in _made.values()})
__all__ = sorted(made.__name__ for made in _made.values())
