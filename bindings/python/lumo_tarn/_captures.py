"""Runs of frames, as sockets and files bring them, and what the recorder keeps."""

from __future__ import annotations

import dataclasses
import os
import re
from typing import Iterable, Iterator

from . import _schema
from ._base import Message
from ._native import Handle, ffi, handle, lib
from .records import MESSAGES

_TRACKED = 7  # byte of a header: the sender made the message with states


@dataclasses.dataclass(frozen=True)
class Control:
    """A control message: the start, abort or commit of a bundle."""

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
    """What the frames hold, one behind the other. A frame with states is read on a handle that tracks."""
    at, look = 0, ffi.new("mirk_platform_frame *")
    while at < len(data):
        rest = data[at:]
        error = lib.mirk_platform_frame_look(ffi.from_buffer(rest), len(rest), look)
        if error != 0 or look.header.total_length > len(rest):
            raise ValueError(f"no whole frame at offset {at}: {os.strerror(error or 74)}")
        frame, luid = rest[: look.header.total_length], bytes(look.luid)
        at += len(frame)
        if luid in _CONTROLS:
            yield _CONTROLS[luid]
        elif luid in MESSAGES:
            yield MESSAGES[luid].from_frame(frame, on=handle(tracked=frame[_TRACKED] != 0))
        else:
            raise ValueError(f"an unknown message at offset {at - len(frame)}: {luid.hex()}")


def messages(data: bytes) -> Iterator[Message]:
    """The same without the control messages around them."""
    return (item for item in frames(data) if isinstance(item, Message))


def recording(text: str, on: Handle | None = None) -> Iterator[Message]:
    """The messages of a recorder's file: XML elements, one behind the other and without a common one around them."""
    kinds = {kind.message_name: kind for kind in MESSAGES.values()}
    # A message holds no message, so the first closing tag of its name is its own.
    pattern = re.compile(rf"<({'|'.join(kinds)})\b[^>]*>.*?</\1>", re.DOTALL)
    at = 0
    for found in pattern.finditer(text):
        if text[at : found.start()].strip():
            raise ValueError(f"not a message: {text[at : found.start()].strip()[:60]}")
        at = found.end()
        yield kinds[found[1]].from_xml(found[0], on=on)
    if text[at:].strip():
        raise ValueError(f"not a message: {text[at:].strip()[:60]}")


def bundle_frames(bundle: str, answer: Iterable[Message], on: Handle | None = None) -> bytes:
    """A whole answer: the start of the bundle, its messages, and the commit; an abort if a message is not for it."""
    name = bundle.replace("-", "_")
    name = name if name in _schema.BUNDLES else f"lumo_tarn_{name}_rsp"
    if name not in _schema.BUNDLES:
        raise ValueError(f"no bundle is called {bundle}")
    listed = list(answer)
    on = on or (listed[0].handle if listed else handle())
    whole = Control(name, "start").to_frame(on)
    try:
        for message in listed:
            if message.handle is not on:
                raise ValueError("all messages of an answer are made on one handle")
            whole += message.to_frame()
    except BaseException:
        Control(name, "abort").to_frame(on)
        raise
    return whole + Control(name, "commit").to_frame(on)
