"""Sequences of frames, as read from sockets and files, and the recorder's files."""

from __future__ import annotations

import dataclasses
import errno
import re
from typing import Iterable, Iterator

from . import _schema
from ._base import Message
from ._native import Handle, ffi, handle, lib
from .records import MESSAGES

_TRACKED = 7  # offset in the header: not 0 if the message has state bytes
_START_SIZE = lib.MIRK_PLATFORM_FRAME_SIZE  # header and luid


@dataclasses.dataclass(frozen=True)
class Control:
    """A control message: kind is start, abort or commit."""

    bundle: str
    kind: str

    def to_frame(self, on: Handle | None = None) -> bytes:
        on = on or handle()
        buffer = ffi.new("uint8_t[64]")
        marshal = getattr(lib, f"{self.bundle}_bundle_{self.kind}_message_marshal")
        written = on.call(marshal, buffer, ffi.NULL, 63)
        return bytes(ffi.buffer(buffer, written))


_CONTROLS = {
    bytes(ffi.buffer(getattr(lib, f"message_{bundle}_bundle_{kind}_luid"), 16)): Control(bundle, kind)
    for bundle in _schema.BUNDLES
    for kind in ("start", "abort", "commit")
}


def frames(data: bytes) -> Iterator[Message | Control]:
    """Yields the messages and control messages of consecutive frames. A message with state bytes is created on a tracked
    handle. Raises ValueError with the offset at an incomplete frame or an unknown message, and OSError if the content
    of a frame is invalid."""
    at, look = 0, ffi.new("mirk_platform_frame *")
    while at < len(data):
        start = data[at : at + _START_SIZE]
        error = lib.mirk_platform_frame_look(ffi.from_buffer(start), len(start), look)
        if error == errno.EBADMSG:
            raise ValueError(f"invalid frame at offset {at}")
        if error != 0 or look.header.total_length > len(data) - at:
            raise ValueError(f"incomplete frame at offset {at}")
        frame, luid = data[at : at + look.header.total_length], bytes(look.luid)
        at += len(frame)
        if luid in _CONTROLS:
            yield _CONTROLS[luid]
        elif luid in MESSAGES:
            yield MESSAGES[luid].from_frame(frame, on=handle(tracked=frame[_TRACKED] != 0))
        else:
            raise ValueError(f"unknown message at offset {at - len(frame)}: {luid.hex()}")


def messages(data: bytes) -> Iterator[Message]:
    """Yields the messages of consecutive frames, as frames() does, without the control messages."""
    return (item for item in frames(data) if isinstance(item, Message))


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
    name = bundle.replace("-", "_")
    name = name if name in _schema.BUNDLES else f"lumo_tarn_{name}_rsp"
    if name not in _schema.BUNDLES:
        raise ValueError(f"unknown bundle: {bundle}")
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
