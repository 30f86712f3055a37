"""Serves bundles to other processes."""

from __future__ import annotations

import asyncio
import concurrent.futures
import dataclasses
import errno
import logging
import os
import threading
import weakref
from typing import Any, Awaitable, Callable, Coroutine, Iterable, Mapping, Optional, Union

from . import _schema
from ._async import in_thread
from ._base import Message
from ._captures import bundle_frames
from ._client import Endpoint, milliseconds, native_address
from ._names import bundle_named
from ._native import ffi, handle, lib

_log = logging.getLogger("lumo_tarn")


@dataclasses.dataclass(frozen=True)
class Request:
    """A request for a bundle: its full name; whether the answer is to contain state bytes; and the origin of the peer,
    such as "user 1000" or "address 192.0.2.1"."""

    bundle: str
    tracked: bool
    origin: str


# The messages of the bundle, or all its frames, such as bundle_frames() returns.
Content = Union[bytes, Iterable[Message]]
# Returns what is in the answer, or a coroutine that does.
Answer = Callable[[Request], Union[Content, Awaitable[Content]]]


def _frames(request: Request, content: Content) -> bytes:
    """The frames of an answer, in the thread that uses the messages."""
    if isinstance(content, bytes):
        return content
    on = handle(request.tracked)
    return bundle_frames(request.bundle, [one if one.handle is on else one.copy(on=on) for one in content], on)


class _Coroutines:
    """Runs coroutines for another thread in an event loop, one at a time, until they are stopped."""

    def __init__(self) -> None:
        self._lock, self._is_stopped = threading.RLock(), False  # a signal handler may stop them, too
        self._running: Optional[concurrent.futures.Future[bytes]] = None
        try:
            self._loop: asyncio.AbstractEventLoop | None = asyncio.get_running_loop()
        except RuntimeError:
            self._loop = None

    def run(self, request: Request, content: Awaitable[Content]) -> bytes:
        async def frames() -> bytes:
            return _frames(request, await content)

        with self._lock:
            if self._loop is None or self._is_stopped:
                if isinstance(content, Coroutine):
                    content.close()
                if self._is_stopped:
                    raise concurrent.futures.CancelledError
                raise RuntimeError("the server was not created in an event loop, which coroutines need")
            self._running = asyncio.run_coroutine_threadsafe(frames(), self._loop)
        return self._running.result()

    def stop(self) -> None:
        with self._lock:
            self._is_stopped = True
            if self._running is not None:
                self._running.cancel()


class Server:
    """Serves bundles in a thread of its own until it is closed. Use it in a with statement or with close().

    answers maps the full or the short name of a bundle to a function that gets a Request and returns the messages of the
    answer, or its frames as bytes. It runs in the server's thread, one call at a time; other threads run as usual, but
    while it runs, no peer is served. Messages are written in that thread, so create them there, or return frames. If it
    raises OSError, the request is refused with its errno and strerror, or with EIO if it has no positive errno; for any
    other exception with EIO, and the exception is logged. Requests for other bundles are refused with ENOENT.

    In an event loop, the function may be a coroutine, which runs in the loop:

        async with lumo_tarn.serve("/run/tarn.sock", {"cl-debug": answer}) as server:
            await server.wait_async()

    address is as for Client, and with port 0 a free port. The limits, with the defaults of mirk_platform.h:

    - peer_limit: number of connected peers
    - idle, frame_time, answer_time: seconds that a peer may be silent, send a frame, take an answer; 0: no limit
    - pending_limit, total_pending_limit: bytes that wait for one peer, and for all; a larger answer disconnects the peer
    - origin_share: percentage of peer_limit and total_pending_limit for the peers of one user or address
    - stall: seconds after which a peer that takes nothing gives way to others; 0: never
    - socket_mode: access rights of the socket file. A port has none: every process that can reach it is served.

    A peer that sends something other than a request, or exceeds a limit, is disconnected; the logger "lumo_tarn" gets
    the reason as info. Raises OSError: EADDRINUSE if a process listens there already, EEXIST if the path is not a socket,
    EADDRNOTAVAIL for a host that is unknown or not local, and other errors of the system; and ValueError for an unknown
    bundle."""

    def __init__(
        self,
        address: Endpoint,
        answers: Mapping[str, Answer],
        *,
        peer_limit: int = 64,
        idle: float = 60.0,
        frame_time: float = 10.0,
        answer_time: float = 60.0,
        pending_limit: int = 64 << 20,
        total_pending_limit: int = 256 << 20,
        origin_share: int = 100,
        stall: float = 1.0,
        socket_mode: int = 0o600,
    ) -> None:
        self._answers = {bundle_named(name): answer for name, answer in answers.items()}
        self._error, self._coroutines = 0, _Coroutines()
        options = ffi.new("mirk_platform_server_options *")
        lib.mirk_platform_server_options_init_sized(options, ffi.sizeof(options[0]))
        options.peer_limit, options.origin_share, options.socket_mode = peer_limit, origin_share, socket_mode
        options.idle_ms, options.frame_ms = milliseconds(idle), milliseconds(frame_time)
        options.answer_ms, options.stall_ms = milliseconds(answer_time), milliseconds(stall)
        options.pending_limit, options.total_pending_limit = pending_limit, total_pending_limit
        options.frame_limit = lib.MIRK_PLATFORM_REQUEST_SIZE_MAX
        self._callbacks = ffi.callback(_ON_FRAME, self._on_frame), ffi.callback(_ON_REFUSED, self._on_refused)
        options.on_frame, options.on_refused = self._callbacks
        is_path, text = native_address(address)
        out = ffi.new("mirk_platform_server **")
        error = (lib.mirk_platform_server_open if is_path else lib.mirk_platform_server_open_tcp)(text, options, out)
        if error != 0:
            raise OSError(error, f"cannot listen: {os.strerror(error)}", os.fspath(address))
        self._native = out[0]
        self._address: str = os.fsdecode(ffi.string(lib.mirk_platform_server_place(self._native)))
        # The thread refers to the server, which therefore serves until it is closed, at the latest at exit.
        self._thread = threading.Thread(target=self._run, name="lumo_tarn server", daemon=True)
        self._finalizer = weakref.finalize(self, _close, self._native, self._thread, self._coroutines)
        self._thread.start()

    @property
    def address(self) -> str:
        """Where the server listens: the path of its socket file, or address and port such as "127.0.0.1:28276"."""
        return self._address

    def wait(self, timeout: float | None = None) -> bool:
        """Waits until the server has stopped, at most timeout seconds; None: as long as it takes. Returns whether it has
        stopped. Raises OSError if it failed."""
        self._thread.join(timeout)
        if self._error != 0:
            raise OSError(self._error, f"the server failed: {os.strerror(self._error)}")
        return not self._thread.is_alive()

    def stop(self) -> None:
        """Lets the server stop and returns at once. Any thread may call it, also a function of answers."""
        self._coroutines.stop()
        if self._finalizer.alive:
            lib.mirk_platform_server_stop(self._native)

    def close(self) -> None:
        """Stops the server, waits until it has stopped, disconnects all peers and removes the socket file. A closed
        server can be closed again. Raises RuntimeError in a function of answers, which would wait for itself."""
        if threading.current_thread() is self._thread:
            raise RuntimeError("the server cannot be closed by its own thread; stop() can be called there")
        self._finalizer()

    def __enter__(self) -> Server:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    async def wait_async(self) -> None:
        """Like wait(), without blocking the event loop."""
        await in_thread(self.wait)

    async def __aenter__(self) -> Server:
        return self

    async def __aexit__(self, *_: object) -> None:
        await in_thread(self.close)

    def _run(self) -> None:
        self._error = lib.mirk_platform_server_run(self._native)

    def _on_frame(self, _: Any, native: Any, peer: int, frame: Any, size: int) -> None:
        request = ffi.new("mirk_platform_request *")
        error = lib.mirk_platform_request_decode(frame, size, request)
        if error != 0 or request.options & lib.MIRK_PLATFORM_REQUEST_REFUSED:
            self._send(native, peer, _refusal(error or errno.EBADMSG, "not a request"))
            reason = b"it sent a frame that is not a request"
            self._on_refused(None, native, peer, reason)
            lib.mirk_platform_server_disconnect(native, peer, reason)
            return
        origin = ffi.string(lib.mirk_platform_server_origin(native, peer)).decode()
        bundle = ffi.string(request.bundle).decode(errors="replace")
        self._send(native, peer, self._answer(Request(bundle, bool(request.options & _TRACKED), origin)))

    def _answer(self, request: Request) -> bytes:
        if request.bundle not in self._answers:
            known = request.bundle in _schema.BUNDLES
            return _refusal(errno.ENOENT, f"{request.bundle} is not served here" if known else "unknown bundle")
        try:
            content = self._answers[request.bundle](request)
            if isinstance(content, Awaitable):
                return self._coroutines.run(request, content)
            return _frames(request, content)
        except concurrent.futures.CancelledError:
            return _refusal(errno.ECANCELED, "the server stops")
        except OSError as error:
            number = error.errno  # negative, for example, if the name of a host is unknown
            if not isinstance(number, int) or not 0 < number <= 0xFFFFFFFF:
                number = errno.EIO
            return _refusal(number, str(error.strerror or "the answer could not be written"))
        except BaseException:  # nothing can be raised into the C function
            _log.exception("cannot answer the request for %s", request.bundle)
            return _refusal(errno.EIO, "the answer could not be written")

    @staticmethod
    def _send(native: Any, peer: int, frames: bytes) -> None:
        lib.mirk_platform_server_send(native, peer, frames, len(frames))  # after an error, the peer is disconnected

    @staticmethod
    def _on_refused(_: Any, native: Any, peer: int, reason: Any) -> None:
        origin = lib.mirk_platform_server_origin(native, peer)
        name = ffi.string(origin).decode() if origin != ffi.NULL else "unknown origin"
        text = reason if isinstance(reason, bytes) else ffi.string(reason)
        _log.info("peer %d of %s is disconnected: %s", peer, name, text.decode(errors="replace"))


_TRACKED = lib.MIRK_PLATFORM_REQUEST_TRACKED
_ON_FRAME = "void(void *, mirk_platform_server *, mirk_platform_peer, void *, uint32_t)"
_ON_REFUSED = "void(void *, mirk_platform_server *, mirk_platform_peer, const char *)"


def _refusal(error: int, sentence: str) -> bytes:
    frame = ffi.new("uint8_t[]", lib.MIRK_PLATFORM_REQUEST_SIZE_MAX)
    text = sentence.replace("\0", " ").encode(errors="replace")
    size = lib.mirk_platform_refusal_encode(frame, len(frame), 0, error, text, ffi.NULL)
    return bytes(ffi.buffer(frame, size))


def _close(native: Any, thread: threading.Thread, coroutines: _Coroutines) -> None:
    coroutines.stop()
    lib.mirk_platform_server_stop(native)
    if thread is not threading.current_thread():  # which has served already, and drops the last reference to the server
        thread.join()
    lib.mirk_platform_server_close(native)
