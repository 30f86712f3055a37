"""Finds out whether a frame that could not be read claims more elements or characters than it contains.

It follows a frame as the C function does; lumo_ui_tarn/admission.hpp gives the reasons for each step."""

from __future__ import annotations

import errno

from . import _schema

_HEAD = 43  # header and identity of a message
_LEAST = {"array": 6, "string": 1}
_WORD, _MAX_SIZE = 0xFFFFFFFF, 0x7FFFFFFF


class _End(Exception):
    """The C function reads no further count."""


def _signed(word: int) -> int:
    return word - (1 << 32) if word > _MAX_SIZE else word


class _Walk:
    def __init__(self, frame: bytes, at: int, tracks: bool) -> None:
        self.frame, self.room, self.tracks = frame, len(frame) - at, tracks

    def number(self, at: int, size: int) -> int:
        return int.from_bytes(self.frame[at : at + size], "big")

    def record(self, name: str, at: int, size: int) -> int:
        """Returns the number of bytes that the record takes, which may be more than there are."""
        if not 2 <= size <= _MAX_SIZE:
            raise _End
        variant, flag = self.frame[at], self.frame[at + 1]
        jump_base = 11 if flag & 32 else 2
        offset = jump_base + 4
        if size < offset:
            raise _End
        jump_end = (jump_base + self.number(at + jump_base, 4)) & _WORD
        states = flag & 8 != 0
        for kind, members, width, of, counted in _schema.PARTS[name] if variant <= 0x7F else []:
            left = max(size - offset, 0)
            if kind == "values":
                offset += min(left, width + (members if states else 0))
            elif kind == "record":
                offset = (offset + self.record(of, at + size - left, left)) & _WORD
                if states and offset != size:
                    offset += 1
            elif left < width:
                raise _End
            else:
                count = self.number(at + offset, width)
                offset += width
                if count:
                    offset = self.block(f"{name}.{counted}", kind, of, count, states, at, size, offset)
        return max(offset, jump_end, key=_signed)

    def block(self, name: str, kind: str, of: str, count: int, states: bool, at: int, size: int, offset: int) -> int:
        """Tests an array or a string that is not empty. Returns the offset after it."""
        least, left = _LEAST[kind], min(size - offset, self.room)
        if count > left // least:
            what = "characters" if least == 1 else f"elements of at least {least} bytes"
            raise OSError(errno.EBADMSG, f"{name} claims {count} {what}, but {left} bytes are left")
        self.room -= count * least
        if kind == "string":
            offset += count
            if states and offset != size and (self.tracks or size - offset > 1):
                offset += 1
            return offset
        for _ in range(count):
            there = max(size - offset, 0)
            offset = (offset + self.record(of, at + size - there, there)) & _WORD
        if states and offset != size:
            offset += 1
        return offset + min(count, max(size - offset, 0)) if states else offset


def admit_record(name: str, frame: bytes, tracks: bool, at: int = 0) -> None:
    """Raises OSError with EBADMSG if the frame of a record claims more elements or characters than it can contain.
    tracks is true if the handle that will read it tracks state."""
    try:
        _Walk(frame, at, tracks).record(name, at, len(frame) - at)
    except _End:
        pass


def admit_message(payload: str, frame: bytes, tracks: bool) -> None:
    """The same for the frame of a message with this payload."""
    admit_record(payload, frame, tracks, _HEAD)
