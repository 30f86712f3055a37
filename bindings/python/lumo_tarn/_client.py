"""Requests bundles from other processes."""

from __future__ import annotations

import contextlib
import errno
import math
import os
import threading
import time
import weakref
from typing import Callable, Iterator, Union

from . import _schema
from ._async import in_thread
from ._base import Message
from ._captures import CONTROLS, Control
from ._names import bundle_named
from ._native import Handle, ffi, handle, lib
from .records import MESSAGES

# Where a process listens: text with a slash, or a path, is that of a socket file; other text is a TCP address.
Endpoint = Union[str, "os.PathLike[str]"]

_MOST_MS = 0xFFFFFFFF
_BETWEEN_SIGNALS_MS = 100


class RefusedError(OSError):
    """The peer refused the request. errno and strerror are what it stated."""

    __module__ = "lumo_tarn"


class AbortedError(OSError):
    """The peer aborted the bundle: ECANCELED."""

    __module__ = "lumo_tarn"


class LimitError(OSError):
    """A frame or the whole answer exceeds its limit: EMSGSIZE."""

    __module__ = "lumo_tarn"


class InvalidAnswerError(OSError):
    """The peer sent something other than an answer to the request: EBADMSG, or the error of reading a frame."""

    __module__ = "lumo_tarn"


def milliseconds(seconds: float) -> int:
    """Rounded up, so that only 0 becomes 0; at most 49 days. Raises ValueError for a negative number."""
    if not seconds >= 0:
        raise ValueError(f"{seconds} is not a time in seconds")
    return math.ceil(min(seconds * 1000, _MOST_MS))


def _printable(text: bytes) -> str:
    """Text of a peer, which could contain control characters for a terminal."""
    characters = text.decode(errors="backslashreplace")
    return "".join(c if c.isprintable() else c.encode("unicode_escape").decode() for c in characters)


def native_address(endpoint: Endpoint) -> tuple[bool, bytes]:
    """True for a socket file; and the C string. Raises ValueError for a NUL, which would end it."""
    text = os.fsencode(endpoint)
    if b"\0" in text:
        raise ValueError("an address cannot contain a NUL character")
    return not isinstance(endpoint, str) or "/" in endpoint, text


class Deadline:
    def __init__(self, seconds: float) -> None:
        self._end = time.monotonic() + milliseconds(seconds) / 1000

    def left(self) -> float:
        return max(self._end - time.monotonic(), 0)

    def left_ms(self) -> int:
        return milliseconds(self.left())


def _check(error: int, what: str) -> None:
    if error == 0:
        return
    kinds: dict[int, type[OSError]] = {errno.EMSGSIZE: LimitError, errno.EBADMSG: InvalidAnswerError}
    raise kinds.get(error, OSError)(error, f"{what}: {os.strerror(error)}")


class _Answer:
    """Tests that frames are the answer to a request for a bundle, and reads them."""

    def __init__(self, bundle: str, limit: int, on: Handle) -> None:
        self._bundle, self._left, self._on = bundle, limit, on
        self._has_started = self.is_complete = False
        self.messages: list[Message] = []

    def feed(self, frame: bytes) -> None:
        self._left -= len(frame)
        if self._left < 0:
            raise LimitError(errno.EMSGSIZE, "the answer exceeds answer_limit")
        luid = frame[lib.MIRK_PLATFORM_HEADER_SIZE : lib.MIRK_PLATFORM_FRAME_SIZE]
        if luid in CONTROLS:
            self._control(CONTROLS[luid])
        elif luid in MESSAGES:
            self._message(MESSAGES[luid], frame)
        else:
            raise InvalidAnswerError(errno.EBADMSG, f"unknown message: {luid.hex()}")

    def _control(self, control: Control) -> None:
        if control.bundle != self._bundle or (control.kind == "start") == self._has_started:
            raise InvalidAnswerError(errno.EBADMSG, f"unexpected {control.kind} of {control.bundle}")
        if control.kind == "abort":
            raise AbortedError(errno.ECANCELED, f"the peer aborted {self._bundle}")
        self._has_started, self.is_complete = True, control.kind == "commit"

    def _message(self, kind: type[Message], frame: bytes) -> None:
        if not self._has_started or kind.message_name != _schema.BUNDLES[self._bundle]:
            raise InvalidAnswerError(errno.EBADMSG, f"unexpected {kind.message_name}")
        try:
            self.messages.append(kind.from_frame(frame, on=self._on))
        except OSError as error:
            raise InvalidAnswerError(error.errno, error.strerror) from error


class Client:
    """A connection to a process that serves bundles. Use it from one thread at a time, in a with statement or with
    close(): a second call before the first has ended raises RuntimeError. After an error other than RefusedError it is
    closed.

    address is the path of a socket file, as a path or as text with a slash, or a TCP address: "HOST:PORT", "HOST", ":PORT"
    or ""; by default, the host is 127.0.0.1 and the port 28276. timeout, here and below, is in seconds; frame_limit, in
    bytes, is the length of the longest frame to receive, and answer_limit that of all frames of an answer together.

    Raises OSError: TimeoutError, ConnectionRefusedError if no process listens, FileNotFoundError if there is no such
    socket file, EINVAL for text that is not an address, EADDRNOTAVAIL for an unknown host, and other errors of the
    system."""

    def __init__(
        self,
        address: Endpoint,
        *,
        timeout: float = 10.0,
        frame_limit: int = 16 << 20,
        answer_limit: int = 256 << 20,
    ) -> None:
        self._answer_limit, self._lock = answer_limit, threading.Lock()
        is_path, text = native_address(address)
        open_client = lib.mirk_platform_client_open if is_path else lib.mirk_platform_client_open_tcp
        out = ffi.new("mirk_platform_client **")
        error = open_client(text, frame_limit, milliseconds(timeout), out)
        if error != 0:
            raise OSError(error, f"cannot connect: {os.strerror(error)}", os.fspath(address))
        self._native = out[0]
        self._finalizer = weakref.finalize(self, lib.mirk_platform_client_close, out[0])

    def close(self) -> None:
        """Closes the connection. A closed client can be closed again."""
        with self._alone():
            self._finalizer()

    @contextlib.contextmanager
    def _alone(self) -> Iterator[None]:
        if not self._lock.acquire(blocking=False):  # waiting would never end in a signal handler
            raise RuntimeError("the client is in use")
        try:
            yield
        finally:
            self._lock.release()

    def __enter__(self) -> Client:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def ask(
        self, bundle: str, *, tracked: bool = False, timeout: float = 10.0, on: Handle | None = None
    ) -> list[Message]:
        """Requests a bundle and returns its messages, if tracked with state bytes. They are created on a handle, by
        default on the thread's own. Nothing is returned before the peer has committed the bundle.

        Raises RefusedError, AbortedError, LimitError and InvalidAnswerError, TimeoutError if the answer is not complete
        in time, ConnectionError if the peer closes the connection, ValueError for an unknown bundle and for a client
        that is closed. All but ValueError are OSError."""
        return self.ask_until(bundle_named(bundle), tracked, Deadline(timeout), on, lambda: False)

    def ask_until(
        self, bundle: str, tracked: bool, deadline: Deadline, on: Handle | None, is_canceled: Callable[[], bool]
    ) -> list[Message]:
        """Like ask(), for the full name of a bundle. Raises TimeoutError soon after is_canceled() returns true."""
        answer = _Answer(bundle, self._answer_limit, on or handle(tracked))
        with self._alone():
            if not self._finalizer.alive:
                raise ValueError("the client is closed")
            try:
                self._request(bundle, tracked, deadline)
                while not answer.is_complete:
                    answer.feed(self._receive(deadline, is_canceled))
            except RefusedError:
                raise
            except BaseException:
                self._finalizer()
                raise
        return answer.messages

    def _request(self, bundle: str, tracked: bool, deadline: Deadline) -> None:
        frame = ffi.new("uint8_t[]", lib.MIRK_PLATFORM_REQUEST_SIZE_MAX)
        options = lib.MIRK_PLATFORM_REQUEST_TRACKED if tracked else 0
        size = lib.mirk_platform_request_encode(frame, len(frame), 0, bundle.encode(), options, ffi.NULL)
        error = lib.mirk_platform_client_send(self._native, frame, size, deadline.left_ms())
        if error in (errno.EPIPE, errno.ECONNRESET):  # a peer that has no room refuses without waiting for the request
            self._receive(deadline, lambda: False)
        _check(error, "cannot send the request")

    def _receive(self, deadline: Deadline, is_canceled: Callable[[], bool]) -> bytes:
        """A frame that is not a refusal. Between calls, signals of the process are handled."""
        frame, size, error = ffi.new("void **"), ffi.new("uint32_t *"), errno.ETIMEDOUT
        while error == errno.ETIMEDOUT and deadline.left_ms() != 0 and not is_canceled():
            left = min(deadline.left_ms(), _BETWEEN_SIGNALS_MS)
            error = lib.mirk_platform_client_receive(self._native, frame, size, left)
        _check(error, "a frame exceeds frame_limit" if error == errno.EMSGSIZE else "no complete answer")
        reply = ffi.new("mirk_platform_request *")
        if lib.mirk_platform_request_decode(frame[0], size[0], reply) == 0:
            if not reply.options & lib.MIRK_PLATFORM_REQUEST_REFUSED:
                raise InvalidAnswerError(errno.EBADMSG, "the answer is a request")
            raise RefusedError(reply.number, _printable(ffi.string(reply.sentence)))
        return bytes(ffi.buffer(frame[0], size[0]))


def ask(
    address: Endpoint,
    bundle: str,
    *,
    tracked: bool = False,
    timeout: float = 10.0,
    frame_limit: int = 16 << 20,
    answer_limit: int = 256 << 20,
    on: Handle | None = None,
) -> list[Message]:
    """Connects to the process that listens on the address, requests a bundle and returns its messages:

        for message in lumo_tarn.ask("/run/tarn.sock", "cl-debug"):
            print(message.payload.warn_enabled)

    bundle is its full name or a short one. timeout is in seconds, from the call to the end of the bundle; the limits are
    in bytes. Client documents the address and the limits, Client.ask() the other arguments; both document the errors."""
    deadline, name = Deadline(timeout), bundle_named(bundle)
    with Client(address, timeout=timeout, frame_limit=frame_limit, answer_limit=answer_limit) as client:
        return client.ask_until(name, tracked, deadline, on, lambda: False)


async def ask_async(
    address: Endpoint,
    bundle: str,
    *,
    tracked: bool = False,
    timeout: float = 10.0,
    frame_limit: int = 16 << 20,
    answer_limit: int = 256 << 20,
) -> list[Message]:
    """Like ask(), for programs with an event loop, also many at the same time:

        answers = await asyncio.gather(*(lumo_tarn.ask_async(peer, "cl-debug") for peer in peers))

    The messages are on a handle of their own. If it is canceled, the connection is closed soon afterwards."""
    deadline, name = Deadline(timeout), bundle_named(bundle)
    on, canceled = Handle(tracked), threading.Event()

    def run() -> list[Message]:
        with Client(address, timeout=timeout, frame_limit=frame_limit, answer_limit=answer_limit) as client:
            return client.ask_until(name, tracked, deadline, on, canceled.is_set)

    try:
        return await in_thread(run)
    finally:
        canceled.set()
