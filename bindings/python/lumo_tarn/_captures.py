"""Sequences of frames, as read from sockets and files, and the recorder's files."""

from __future__ import annotations

import dataclasses
import errno
import io
import os
import re
from typing import BinaryIO, Callable, Generator, Iterable, Iterator, NamedTuple, TypeGuard, Union, cast

from . import _schema
from ._base import Message
from ._names import bundle_named
from ._native import Handle, ffi, handle, lib
from .records import MESSAGES

_TRACKED = 7  # offset in the header: not 0 if the message has state bytes
_START_SIZE = lib.MIRK_PLATFORM_FRAME_SIZE  # header and luid
_MARKER = b"\xbc"  # the first byte of a frame
_PIECE = 1 << 16  # bytes that are read at once


@dataclasses.dataclass(frozen=True)
class Control:
    """A control message: kind is start, abort or commit."""

    bundle: str
    kind: str

    def to_frame(self, on: Handle | None = None) -> bytes:
        """Returns the control message as a frame, and opens or closes the bundle on the handle. Raises OSError: EEXIST
        for a start if a bundle is open there, ENOENT for a commit or an abort if none is."""
        on = on or handle()
        buffer = ffi.new("uint8_t[64]")
        marshal = getattr(lib, f"{self.bundle}_bundle_{self.kind}_message_marshal")
        written = on.call(marshal, buffer, ffi.NULL, 63)
        return bytes(ffi.buffer(buffer, written))


CONTROLS = {
    bytes(ffi.buffer(getattr(lib, f"message_{bundle}_bundle_{kind}_luid"), 16)): Control(bundle, kind)
    for bundle in _schema.BUNDLES
    for kind in ("start", "abort", "commit")
}


class Skipped(NamedTuple):
    """Bytes that are no frame that can be read: their offset, their number, and the reason."""

    offset: int
    length: int
    reason: str


class _Window:
    """The part of a file that is in memory."""

    def __init__(self, file: BinaryIO) -> None:
        self._file, self._begin, self._held = file, 0, bytearray()
        self.size: int | None = None
        if file.seekable():
            at = file.tell()
            self.size = file.seek(0, io.SEEK_END) - at
            file.seek(at)

    def part(self, begin: int, size: int) -> bytes:
        while self._begin + len(self._held) < begin + size and (piece := self._file.read(_PIECE)):
            self._held += piece
        return bytes(self._held[begin - self._begin : begin - self._begin + size])

    def drop(self, end: int) -> None:
        """Releases everything before the offset."""
        del self._held[: end - self._begin]
        self._begin = end


class _Frames:
    """Finds frames in bytes or a file."""

    def __init__(self, source: bytes | bytearray | memoryview | BinaryIO) -> None:
        self._look = ffi.new("mirk_platform_frame *")
        if isinstance(source, (bytes, bytearray, memoryview)):
            data = source
            self._part: Callable[[int, int], bytes] = lambda begin, size: bytes(data[begin : begin + size])
            self._size: int | None = len(data)
            self.drop: Callable[[int], None] = lambda end: None
        else:
            window = _Window(source)
            self._part, self._size, self.drop = window.part, window.size, window.drop

    def has_ended(self, at: int) -> bool:
        return not self._part(at, 1) if self._size is None else at >= self._size

    def head_at(self, at: int) -> tuple[int, bytes]:
        """The length and the luid of the frame. Raises ValueError if there is no header."""
        start = self._part(at, _START_SIZE)
        error = lib.mirk_platform_frame_look(ffi.from_buffer(start), len(start), self._look)
        if error != 0:
            raise ValueError(f"{'invalid' if error == errno.EBADMSG else 'incomplete'} frame at offset {at}")
        return self._look.header.total_length, bytes(self._look.luid)

    def frame_at(self, at: int) -> tuple[bytes, bytes]:
        """The bytes of the frame and its luid. Raises ValueError if it is incomplete or unknown."""
        length, luid = self.head_at(at)
        frame = self._part(at, length) if self._size is None or length <= self._size - at else b""
        if len(frame) < length:
            raise ValueError(f"incomplete frame at offset {at}")
        if luid not in CONTROLS and luid not in MESSAGES:
            raise ValueError(f"unknown message at offset {at}: {luid.hex()}")
        return frame, luid

    def is_head(self, at: int) -> bool:
        try:
            luid = self.head_at(at)[1]
        except ValueError:
            return False
        return luid in CONTROLS or luid in MESSAGES

    def next_head(self, at: int) -> int:
        """The offset of the next header of a known message, or of the end."""
        while piece := self._part(at, _PIECE):
            self.drop(at)
            found = piece.find(_MARKER)
            at += len(piece) if found == -1 else found
            if found != -1:
                if self.is_head(at):
                    break
                at += 1
        return at

    def has_wrong_length(self, at: int, length: int) -> bool:
        """True if no header follows the frame, but one begins inside it."""
        end = at + length
        if self.has_ended(end) or self.is_head(end):
            return False
        return _Frames(self._part(at, length + _START_SIZE)).next_head(1) < length


def _read(frame: bytes, luid: bytes) -> Message | Control:
    if luid in CONTROLS:
        return CONTROLS[luid]
    return MESSAGES[luid].from_frame(frame, on=handle(tracked=frame[_TRACKED] != 0))


# The path of a file, an open binary file, or the bytes of frames.
Frames = Union[str, "os.PathLike[str]", bytes, bytearray, memoryview, BinaryIO]
# Frames, or messages.
Source = Union[Frames, Message, Control, Iterable[Union[Message, Control]]]


def frames(source: Frames, skipped: list[Skipped] | None = None) -> Generator[Message | Control, None, None]:
    """Yields the messages and control messages of consecutive frames in bytes, in a binary file or in the file with
    this path. Of a file, it holds one frame in memory. A message with state bytes is created on a tracked handle.

    Raises ValueError with the offset at an incomplete frame or an unknown message, and OSError if the content of a frame
    is invalid, or if the file cannot be opened. With a list, continues instead with the next header of a known message,
    and appends what it skips to the list."""
    if isinstance(source, (str, os.PathLike)):
        with open(source, "rb") as file:
            yield from frames(file, skipped)
        return
    found, at = _Frames(source), 0
    while not found.has_ended(at):
        try:
            frame, luid = found.frame_at(at)
            if skipped is not None and found.has_wrong_length(at, len(frame)):
                raise ValueError(f"wrong length of the frame at offset {at}")
            item = _read(frame, luid)
        except (ValueError, OSError) as error:
            if skipped is None:
                raise
            begin, at = at, found.next_head(at + 1)
            sentence = error.strerror if isinstance(error, OSError) else None
            skipped.append(Skipped(begin, at - begin, sentence or str(error)))
        else:
            at += len(frame)
            found.drop(at)
            yield item


def messages(source: Frames, skipped: list[Skipped] | None = None) -> Iterator[Message]:
    """Yields the messages of consecutive frames, as frames() does, without the control messages."""
    return (item for item in frames(source, skipped) if isinstance(item, Message))


class Capture:
    """Frames that are read one after the other, of which one is in memory; for a with statement, which closes the file:

        with lumo_tarn.Capture("answer.bin", keep_going=True) as capture:
            for message in capture.messages():
                print(message.payload)
        print(capture.skipped)

    source is what frames() takes. Iterating yields what frames() yields, and continues where it was left. keep_going
    continues after broken bytes, and skipped lists them. Raises OSError if the file cannot be opened."""

    def __init__(self, source: Frames, *, keep_going: bool = False) -> None:
        self.skipped: list[Skipped] = []
        opened = open(source, "rb") if isinstance(source, (str, os.PathLike)) else None
        self._opened, self._is_closed = opened, False
        self._items = frames(source if opened is None else opened, self.skipped if keep_going else None)

    def __iter__(self) -> Iterator[Message | Control]:
        if self._is_closed:
            raise ValueError("the capture is closed")
        return self._items

    def messages(self) -> Iterator[Message]:
        """Yields the messages without the control messages."""
        return (item for item in self if isinstance(item, Message))

    def close(self) -> None:
        """Closes the file, unless the caller opened it. A closed capture can be closed again."""
        self._is_closed = True
        self._items.close()
        if self._opened is not None:
            self._opened.close()

    def __enter__(self) -> Capture:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()


def are_frames(source: Source) -> TypeGuard[Frames]:
    """Whether a source consists of frames, not of messages."""
    return isinstance(source, (str, os.PathLike, bytes, bytearray, memoryview)) or hasattr(source, "read")


def items_of(source: Source) -> Iterator[Message | Control]:
    """Yields messages and control messages of what rows() and diff() read: frames as frames() takes them, a message, or
    an iterable of messages and control messages."""
    if are_frames(source):
        yield from frames(source)
    elif isinstance(source, (Message, Control)):
        yield source
    else:
        yield from cast(Iterable[Union[Message, Control]], source)


def recording(text: str, on: Handle | None = None) -> Iterator[Message]:
    """Yields the messages of a recorder's file, which is a sequence of XML elements without a root. Raises ValueError at
    any other text."""
    kinds = {kind.message_name: kind for kind in MESSAGES.values()}
    opening = re.compile(rf"\s*<({'|'.join(kinds)})\b[^>]*>")
    at = 0
    while found := opening.match(text, at):
        # Messages do not nest, so the first closing tag with the message's name is its own.
        closing = f"</{found[1]}>"
        end = text.find(closing, found.end())
        if end == -1:
            break
        message = text[at : end + len(closing)].lstrip()
        at = end + len(closing)
        yield kinds[found[1]].from_xml(message, on=on)
    if rest := text[at:].strip():
        raise ValueError(f"not a message: {rest[:60]}")


def bundle_frames(bundle: str, content: Iterable[Message], on: Handle | None = None) -> bytes:
    """Returns the frames of a bundle: its start, the messages, and its commit. bundle is its full name or a short one
    such as "cl-debug". Raises OSError if the bundle does not admit a message, and ValueError for an unknown bundle or
    messages of several handles; the bundle is then aborted on the handle, and no frames are returned."""
    name = bundle_named(bundle)
    listed = list(content)
    on = on or (listed[0].handle if listed else handle())
    whole = [Control(name, "start").to_frame(on)]
    try:
        for message in listed:
            if message.handle is not on:
                raise ValueError("the messages of a bundle must be on one handle")
            whole.append(message.to_frame())
    except BaseException:
        Control(name, "abort").to_frame(on)
        raise
    whole.append(Control(name, "commit").to_frame(on))
    return b"".join(whole)
