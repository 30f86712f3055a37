"""Base classes of records and messages. records.py creates their subclasses from the schema."""

from __future__ import annotations

import errno
import json
import os
from collections.abc import Sequence
from typing import Any, Callable, ClassVar, Generic, Iterator, Mapping, TypeVar, overload

from ._address import Address, AddressLike
from ._admission import admit_message, admit_record
from ._native import CTX_ID, Document, Handle, ffi, handle, lib
from ._values import plan

R = TypeVar("R", bound="Record")
M = TypeVar("M", bound="Message")

# Bits of obj_flag in the header of an object.
_STATE_TRACKED = 8
_STATE_OFFSET = 64
_RA_DATA = 32
# The state byte of a member that was written.
_WRITTEN = 2


class Native:
    """A C object that this object owns, or one that is part of another object. A part is located at each use, because an
    array moves its elements when it grows.

    copy(), copy.copy() and copy.deepcopy() return a deep copy that is not a part of anything, on the same handle.
    Pickling stores the frame, and unpickling reads it on the thread's default handle, a tracked one if the original's
    was. Objects are equal if their types and members are; state bytes are ignored. They are mutable, so they cannot be
    keys of a dict."""

    _handle: Handle
    _locate: Callable[[], Any]

    @property
    def native(self) -> Any:
        """The C object, an argument for the functions of lumo_tarn._native.lib. Raises ValueError if the handle is
        closed."""
        self._handle.require_open()
        return self._locate()

    @property
    def handle(self) -> Handle:
        """The handle on which the object was created."""
        return self._handle

    def _bind(self, on: Handle, locate: Callable[[], Any]) -> None:
        object.__setattr__(self, "_handle", on)
        object.__setattr__(self, "_locate", locate)

    def _own(self, on: Handle, native: Any, destroy: Callable[..., Any]) -> None:
        if native == ffi.NULL:
            raise MemoryError(f"cannot allocate a {type(self).__name__}")
        on.destroy_with(self, native, destroy)
        self._bind(on, lambda: native)

    def __copy__(self: Any) -> Any:
        return self.copy()

    def __deepcopy__(self: Any, _: object) -> Any:
        return self.copy()

    def __reduce__(self: Any) -> Any:
        return _unpickled, (type(self), self.to_frame(), self._handle.tracked)


def _unpickled(kind: Any, frame: bytes, tracked: bool) -> Any:
    return kind.from_frame(frame, on=handle(tracked))


class Record(Native):
    """A record. Each member is an attribute; assigning a record to a member copies it. The constructor takes members by
    name, and the handle as on. Text members raise ValueError for a NUL character."""

    record_name: ClassVar[str]
    members: ClassVar[Mapping[str, Any]]  # by attribute, in the order of the schema
    owns_blocks: ClassVar[bool]

    def __init__(self, *, on: Handle | None = None, **values: Any) -> None:
        on = on or handle()
        self._own(on, self._function("create")(on.native, CTX_ID), self._function("destroy"))
        self.set(**values)

    def __setattr__(self, name: str, value: Any) -> None:
        if name not in self.members:
            raise AttributeError(f"{type(self).__name__} has no member {name}")
        object.__setattr__(self, name, value)

    @classmethod
    def _function(cls, name: str) -> Any:
        return getattr(lib, f"{cls.record_name}_{name}")

    @classmethod
    def _borrowed(cls: type[R], on: Handle, locate: Callable[[], Any]) -> R:
        record = cls.__new__(cls)
        record._bind(on, locate)
        return record

    def _call(self, name: str, *arguments: Any) -> Any:
        return self._handle.call(self._function(name), self.native, *arguments)

    # ---- members

    def set(self: R, **values: Any) -> R:
        """Sets members by name. The value of an array is a sequence, that of a nested record a record or a mapping."""
        for name, value in values.items():
            name = name if name in self.members else f"{name}_"  # a keyword, or a name of all records
            if name not in self.members:
                raise AttributeError(f"{type(self).__name__} has no member {name.rstrip('_')}")
            present = getattr(self, name)
            if isinstance(value, Mapping) and isinstance(present, Record):
                present.set(**value)
            elif isinstance(present, Array):
                present[:] = value
            else:
                setattr(self, name, value)
        return self

    def __iter__(self) -> Iterator[tuple[str, Any]]:
        """Yields name and value of each member, without counts and lengths."""
        return ((name, getattr(self, name)) for name, member in self.members.items() if member.tracked)

    def to_dict(self) -> dict[str, Any]:
        """Returns the values of all members, as in the output of "tarn decode --json" without state bytes, except that
        members of 64 bits are numbers. A nested record or an address without a body is None. Raises OSError (EIDRM) if
        the record itself has none."""
        return self._values()

    def to_json(self) -> str:
        """Returns JSON, as in the output of "tarn decode --json" without state bytes. Members of 64 bits are text, and text
        that is not UTF-8 is {"bytes": HEX}; the constructor and assignments accept both. What has no body is null, or the
        error of to_dict()."""
        return json.dumps(self._values(as_json=True))

    def _values(self, as_json: bool = False) -> dict[str, Any]:
        values: dict[str, Any] | None = plan(self.record_name, as_json).read(self.native)
        if values is None:
            raise OSError(errno.EIDRM, os.strerror(errno.EIDRM))
        return values

    def state_of(self, member: str) -> int | None:
        """Returns the state byte of a member, of an array that of the whole; None if the record has no state bytes."""
        return self.members[member].state(self) if self._is_tracked() else None

    def set_state_of(self, member: str, value: int) -> None:
        """Writes the state byte of a member. Raises OSError if the record has no state bytes."""
        self.members[member].set_state(self, value)

    def set_all_states(self, value: int) -> None:
        """Writes all state bytes of the record and of the elements of its own arrays. Elements of arrays in nested
        records keep theirs. Has no effect on a record without state bytes.

        The blocks with the states of elements are leaked: Array.state then returns value for each element, and
        Array.set_state has no effect, until the array grows, which clears the states of its elements."""
        self._function("set_all_state_tracking_flag")(self._handle.native, CTX_ID, self.native, value)

    def _is_tracked(self) -> bool:
        return self._handle.tracked and bool(ffi.cast("mirk_object *", self.native).obj_flag & _STATE_TRACKED)

    # ---- whole

    def _frame_room(self) -> int:
        # Room for RA data, which len does not count: 9 bytes for each object, whose frame has at least 6 bytes. In a
        # smaller buffer, state bytes at the end can be dropped without an error.
        return 3 * int(self._function("len")(self._handle.native, CTX_ID, self.native))

    def to_frame(self) -> bytes:
        """Returns the record as a frame."""
        marshal, native, h = self._function("marshal"), self.native, self._handle
        return h.grown(self._frame_room(), lambda buffer, room, err: marshal(h.native, CTX_ID, buffer, native, room, err))

    @classmethod
    def from_frame(cls: type[R], frame: bytes, on: Handle | None = None) -> R:
        """Creates a record from a frame. Raises OSError if the frame is invalid. EBADMSG means that it claims more
        elements or characters than it can contain. Memory is limited in proportion to the frame's length."""
        h, frame = on or handle(), bytes(frame)
        record = cls(on=h)
        with h.reading(frame, lambda: admit_record(cls.record_name, frame, h.tracked)):
            h.call(cls._function("unmarshal"), ffi.from_buffer(frame + b"\0"), record.native, len(frame), 0)
        return record

    def _rendered(self, write: Callable[[Any, int, Any], Any]) -> str:
        size = self._function("len")(self._handle.native, CTX_ID, self.native)
        return self._handle.grown(3 * size + 4096, write).replace(b"\0", b" ").decode(errors="replace")

    def to_xml(self, name: str | None = None) -> str:
        """Returns an XML element with this name, or with the record's."""
        h, native, called = self._handle, self.native, (name or self.record_name).encode()
        to_xml = self._function("to_xml")
        return self._rendered(lambda buffer, room, err: to_xml(h.native, CTX_ID, called, buffer, native, room, 0, err))

    @classmethod
    def from_xml(cls: type[R], text: str | bytes, path: str | None = None, on: Handle | None = None) -> R:
        """Creates a record from the element at path, or from the first one, at any depth, with the record's name. Raises
        ValueError for malformed XML and OSError for an invalid number, or if there is no such element."""
        record = cls(on=on)
        record._read_xml(text, path)
        return record

    def _read_xml(self, text: str | bytes, path: str | None = None, ignored: int = 0) -> None:
        explanation, err = ffi.new("char[256]"), ffi.new("uint32_t *")
        location = (path or f"//{self.record_name}").encode()
        with Document(text) as document:
            read = self._function("from_xml")
            read(self._handle.native, CTX_ID, location, document, self.native, err, explanation, 256)
        if err[0] not in (0, ignored):
            raise OSError(err[0], ffi.string(explanation).decode(errors="replace") or os.strerror(err[0]))

    def text(self, name: str | None = None) -> str:
        """Returns text for people, under this name or the record's. There is no parser for it."""
        h, native, called = self._handle, self.native, (name or self.record_name).encode()
        show = self._function("print")
        return self._rendered(lambda buffer, room, err: show(h.native, CTX_ID, buffer, 0, called, native, room, err))

    def copy(self: R, on: Handle | None = None) -> R:
        """Returns a deep copy, on the same handle or on another one."""
        if on is not None and on is not self._handle:
            return type(self).from_frame(self.to_frame(), on)  # only one of the handles may track
        record = type(self).__new__(type(self))
        record._own(self._handle, self._cloned(), self._function("destroy"))
        return record

    def _cloned(self) -> Any:
        size = self._frame_room()
        result, buffer = ffi.new(f"{self.record_name} **"), ffi.new("uint8_t[]", size + 1)
        self._call("clone", result, buffer, size)
        return result[0]

    def compare(self: R, other: R) -> int:
        """Compares the members in the order of the schema. Returns a number less than, equal to or greater than 0. State
        bytes are ignored."""
        return int(self._function("compare")(self.native, other.native))

    def hash(self, seed: int = 0) -> int:
        """Returns the library's hash of the members."""
        return int(self._function("hash")(self.native, seed))

    def __eq__(self, other: object) -> bool:
        return type(self) is type(other) and self.compare(other) == 0  # type: ignore[arg-type]

    __hash__ = None  # type: ignore[assignment]  # records are mutable

    def __lt__(self: R, other: R) -> bool:
        if type(self) is not type(other):
            return NotImplemented
        return self.compare(other) < 0

    def __le__(self: R, other: R) -> bool:
        if type(self) is not type(other):
            return NotImplemented
        return self.compare(other) <= 0

    def __str__(self) -> str:
        return self.text().rstrip("\n")

    def __repr__(self) -> str:
        return f"{type(self).__name__}({', '.join(f'{name}={value!r}' for name, value in self)})"


class Array(Sequence[R], Generic[R]):
    """The elements of an array member. They are parts of the record. Arrays can grow, but not shrink.

    copy.copy() returns a list of the elements, copy.deepcopy() a list of copies, and pickling stores such a list. An
    array is equal to an array, list or tuple of equal elements."""

    def __init__(self, owner: Record, member: Any) -> None:
        self._owner, self._member = owner, member

    def __copy__(self) -> list[R]:
        return list(self)

    def __deepcopy__(self, _: object) -> list[R]:
        return [element.copy() for element in self]

    def __reduce__(self) -> Any:
        return list, (list(self),)

    def __len__(self) -> int:
        return int(self._owner._call(f"{self._member.counted_by}_get_value"))

    @overload
    def __getitem__(self, index: int) -> R: ...
    @overload
    def __getitem__(self, index: slice) -> list[R]: ...
    def __getitem__(self, index: int | slice) -> R | list[R]:
        if isinstance(index, slice):
            return [self[at] for at in range(*index.indices(len(self)))]
        at, owner, name = self._at(index), self._owner, f"{self._member.name}_get"
        element: R = self._member.record._borrowed(owner._handle, lambda: owner._call(name, at))
        return element

    def __setitem__(self, index: int | slice, value: Any) -> None:
        """Copies a record into an element, or records into a slice; a mapping in a slice sets the members that it names. A
        slice at the end can grow. Raises ValueError if elements would be removed or moved."""
        if isinstance(index, int):
            self._put(self._at(index), self._copied(value))
            return
        values, count = list(value), len(self)
        start, stop, step = index.indices(count)
        replaced = max(stop - start, 0)
        if step != 1:
            raise ValueError("only slices with step 1 can be assigned")
        if len(values) < replaced:
            raise ValueError("arrays do not shrink")
        if len(values) > replaced and start + replaced < count:
            raise ValueError("arrays grow only at the end")
        for one in values:
            if not isinstance(one, Mapping):
                expect(self._member.record, one)
        self.grow(max(count, start + len(values)))
        copies = (one if isinstance(one, Mapping) else self._copied(one) for one in values)
        # Values can be elements that are overwritten, for example those of sorted().
        for at, one in enumerate(list(copies) if start < count else copies, start):
            if isinstance(one, Mapping):
                self[at].set(**one)
            else:
                self._put(at, one)

    def grow(self, elements: int) -> None:
        """Grows the array to this many elements. All members of new ones are zero. Raises ValueError if the array would
        shrink, and OverflowError if the count cannot hold the number."""
        before, most = len(self), self._member.most
        if elements < before:
            raise ValueError("arrays do not shrink")
        if elements > most:
            raise OverflowError(f"{self._member.name} holds at most {most} elements")
        if elements > before:
            blank = self._member.record(on=self._owner._handle) if self._owner._handle.tracked else None
            self._owner._call(f"{self._member.name}_set", elements - 1, blank.native if blank else ffi.NULL)

    def add(self, **values: Any) -> R:
        """Appends an element with these members and returns it. For many elements grow() is faster."""
        self.grow(len(self) + 1)
        return self[-1].set(**values)

    def append(self, record: R) -> None:
        """Appends a copy of a record."""
        self[len(self) :] = [record]

    def extend(self, records: Sequence[R]) -> None:
        """Appends copies of records."""
        self[len(self) :] = records

    def state(self, index: int) -> int | None:
        """Returns the state byte of an element; None if the record has no state bytes."""
        if not self._owner._is_tracked():
            return None
        return int(self._owner._call(f"{self._member.name}_state_flag_get", self._at(index)))

    def set_state(self, index: int, value: int) -> None:
        """Writes the state byte of an element. Raises OSError if the record has no state bytes. May have no effect after
        Record.set_all_states."""
        self._owner._call(f"{self._member.name}_state_flag_set", self._at(index), value)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, (Array, list, tuple)):
            return NotImplemented
        return len(self) == len(other) and all(a == b for a, b in zip(self, other))

    def __repr__(self) -> str:
        return f"[{', '.join(repr(element) for element in self)}]"

    def _at(self, index: int) -> int:
        count = len(self)
        at = index + count if index < 0 else index
        if not 0 <= at < count:
            raise IndexError(f"index {index} is out of range: {self._member.name} has {count} elements")
        return at

    def _copied(self, record: R) -> R:
        expect(self._member.record, record)
        return record.copy(on=self._owner._handle)

    def _put(self, at: int, copy: R) -> None:
        former = emptied(self[at])  # the C setter would leak it
        self._owner._call(f"{self._member.name}_set", at, copy.native)
        del former


def expect(kind: type[Record], value: object) -> None:
    if not isinstance(value, kind):
        raise TypeError(f"expected {kind.__name__}, not {type(value).__name__}")


def emptied(record: R) -> R | None:
    """Moves the arrays and strings of a record into a new one and returns that; None if the record has neither."""
    if not record.owns_blocks:
        return None
    former = type(record)(on=record._handle)
    record._handle.call(record._function("set"), former.native, record.native)
    return former


def read_address(record: Record, name: str) -> Address:
    present = record._call(f"{name}_get")
    word = present.word
    return Address(present.af, present.prefix_len, present.scope, (word[0], word[1], word[2], word[3]))


def write_address(record: Record, name: str, value: AddressLike) -> None:
    """The C setter takes an object: a copy of the present one with the new values, followed by state bytes."""
    address, present = Address.of(value), record._call(f"{name}_get")
    size = ffi.sizeof("ip_address")
    source = ffi.new("uint8_t[]", bytes(ffi.buffer(present, size)) + bytes([_WRITTEN] * 8))
    copy = ffi.cast("ip_address *", source)
    copy.obj_flag &= ~(_STATE_OFFSET | _RA_DATA)
    copy.af, copy.prefix_len, copy.scope = address.af, address.prefix_len, address.scope
    for at, word in enumerate(address.word):
        copy.word[at] = word
    record._call(f"{name}_set", copy)


class Message(Native):
    """A message. It owns its payload, which the constructor and assignments copy."""

    message_name: ClassVar[str]
    payload_type: ClassVar[type[Record]]
    luid: ClassVar[bytes]

    def __init__(self, payload: Any = None, *, on: Handle | None = None) -> None:
        on = on or (payload.handle if isinstance(payload, Record) else handle())
        self._own(on, self._function("create")(on.native, CTX_ID), self._function("destroy"))
        if payload is not None:
            self.payload = payload

    @classmethod
    def _function(cls, name: str) -> Any:
        return getattr(lib, f"{cls.message_name}_message_{name}")

    @classmethod
    def _taken(cls: type[M], on: Handle, native: Any) -> M:
        message = cls.__new__(cls)
        message._own(on, native, cls._function("destroy"))
        return message

    @property
    def payload(self) -> Any:
        """The payload, a part of the message."""
        get = self._function(f"{self.payload_type.record_name}_get")
        return self.payload_type._borrowed(self._handle, lambda: self._handle.call(get, self.native))

    @payload.setter
    def payload(self, value: Any) -> None:
        expect(self.payload_type, value)
        own = value if value.handle is self._handle else value.copy(on=self._handle)
        self._handle.call(self._function(f"{own.record_name}_free_and_set"), self.native, own._cloned())

    def copy(self: M, on: Handle | None = None) -> M:
        """Returns a message with a copy of the payload, on the same handle or on another one."""
        return type(self)(self.payload, on=on or self._handle)

    def to_frame(self) -> bytes:
        """Returns the message as a frame. Raises OSError if an open bundle on the handle does not admit it."""
        h, native, marshal = self._handle, self.native, self._function("marshal")
        size = self._function("len")(h.native, CTX_ID, native)
        return h.grown(size, lambda buffer, room, err: marshal(h.native, CTX_ID, buffer, native, room, err))

    @classmethod
    def from_frame(cls: type[M], frame: bytes, on: Handle | None = None) -> M:
        """Creates a message from a frame. Raises OSError if the frame is invalid, as Record.from_frame does."""
        h, frame = on or handle(), bytes(frame)
        out, err = ffi.new(f"{cls.message_name} **"), ffi.new("uint32_t *")
        with h.reading(frame, lambda: admit_message(cls.payload_type.record_name, frame, h.tracked)):
            cls._function("unmarshal_only")(h.native, CTX_ID, out, ffi.from_buffer(frame + b"\0"), len(frame), err)
            message = cls._taken(h, out[0])  # also after an error, so that it is destroyed
            if err[0] != 0:
                raise OSError(err[0], f"invalid frame of {cls.message_name}: {os.strerror(err[0])}")
        return message

    def to_xml(self) -> str:
        """Returns an XML element with the message's name."""
        return self._rendered("to_xml")

    def text(self) -> str:
        """Returns text for people. There is no parser for it."""
        return self._rendered("print")

    def _rendered(self, name: str) -> str:
        h, native, write = self._handle, self.native, self._function(name)
        size = self._function("len")(h.native, CTX_ID, native)
        whole = h.grown(3 * size + 4096, lambda buffer, room, err: write(h.native, CTX_ID, buffer, native, room, err))
        return whole.replace(b"\0", b" ").decode(errors="replace")

    @classmethod
    def from_xml(cls: type[M], text: str | bytes, on: Handle | None = None) -> M:
        """Creates a message and reads its payload from the first element with the payload's name. If there is none, all
        members are zero. Raises ValueError for malformed XML and OSError for an invalid number."""
        message = cls(on=on)
        # Not by the message's C function, which leaks the message after an error.
        message.payload._read_xml(text, ignored=errno.ENOENT)
        return message

    def to_dict(self) -> dict[str, Any]:
        """Returns name and payload, as in the output of "tarn decode --json" without state bytes, except that members of
        64 bits are numbers."""
        return {"message": self.message_name, "payload": self.payload.to_dict()}

    def to_json(self) -> str:
        """Returns a line of JSON, as in the output of "tarn decode --json" without state bytes. Members of 64 bits are
        text."""
        return json.dumps({"message": self.message_name, "payload": self.payload._values(as_json=True)})

    def __eq__(self, other: object) -> bool:
        return type(self) is type(other) and bool(self.payload == other.payload)  # type: ignore[attr-defined]

    __hash__ = None  # type: ignore[assignment]

    def __str__(self) -> str:
        return self.text().rstrip("\n")

    def __repr__(self) -> str:
        return f"{type(self).__name__}({self.payload!r})"
