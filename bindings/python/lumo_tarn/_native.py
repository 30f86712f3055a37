"""The shared library and handles of its runtime."""

from __future__ import annotations

import collections
import contextlib
import errno
import os
import threading
import weakref
from pathlib import Path
from typing import Any, Callable, Deque, Iterator, NoReturn, Tuple

from ._cffi import ffi as ffi
from ._installed import LIBRARIES

# Some releases of cffi crash if they parse a function type before the structure that it takes.
ffi.typeof("mirk_handle")


def _library() -> str:
    """Path of the library: relative to the package in an installation, which may have been moved."""
    name = "liblumo_ui_tarn.so.1"
    installed = Path(__file__).resolve().parent / LIBRARIES / name
    return os.environ.get("LUMO_TARN_LIBRARY") or (str(installed) if installed.exists() else name)


# The library stays loaded, because finalizers call it while the interpreter exits.
lib: Any = ffi.dlopen(_library(), os.RTLD_NOW | os.RTLD_NODELETE)

CTX_ID = 1
_BUFFER_TOO_SMALL = (errno.ENOMEM, errno.ENOSPC, errno.EMSGSIZE)
_MAX_BUFFER_SIZE = 1 << 30
# Bytes of memory for each byte of a frame. An element without a body takes 6 bytes of a frame, and as an instance with
# state bytes at most 2,500.
_GROWTH, _LEAST_GROWTH = 512, 1 << 16

lib.mirk_lumo_ui_tarn_type_trace_init()
lib.mirk_lumo_ui_tarn_message_trace_init()
# Reading a list takes time with the square of its elements; docs/trust.md states what a byte may cost.
lib.mirk_platform_document_limit_lists(256)
if "MIRK_TRACE" not in os.environ:
    lib.mirk_platform_trace_set_levels(1)  # errors are raised, so traces would repeat them


_Collected = Deque[Tuple[Any, Callable[..., Any]]]  # native objects, and the functions that destroy them


def _destroy(h: Any, collected: _Collected) -> None:
    while True:
        try:
            native, destroy = collected.popleft()
        except IndexError:  # a test for elements could be outdated, because collections can run in between
            return
        destroy(h, CTX_ID, native)


def _close(h: Any, collected: _Collected) -> None:
    _destroy(h, collected)
    lib.mirk_platform_handle_close(h)


class Handle:
    """A handle of the runtime. On a tracked handle records have state bytes.

    Use a handle, and the objects that were created on it, from one thread at a time. They can be garbage in any thread:
    the next use of the handle destroys them. Handles cannot be copied or pickled, and are equal only to themselves.

    A handle is closed when nothing refers to it, at the end of a with statement, or by close(). What was created on a
    closed handle cannot be used any more: ValueError."""

    def __init__(self, tracked: bool = False) -> None:
        options = ffi.new("mirk_platform_handle_options *")
        lib.mirk_platform_handle_options_init_sized(options, ffi.sizeof(options[0]))
        options.tracking = lib.MIRK_PLATFORM_TRACKING_ON if tracked else lib.MIRK_PLATFORM_TRACKING_NONE
        self.tracked = tracked
        native = lib.mirk_platform_handle_open(options)
        if native == ffi.NULL:
            raise MemoryError("cannot allocate a handle")
        self._native: Any = native
        self._collected: _Collected = collections.deque()
        self._finalizer = weakref.finalize(self, _close, native, self._collected)

    @property
    def native(self) -> Any:
        """The C handle. Destroys the objects that were collected since it was last read."""
        self.require_open()
        if self._collected:
            _destroy(self._native, self._collected)
        return self._native

    def destroy_with(self, holder: object, native: Any, destroy: Callable[..., Any]) -> None:
        """Destroys the native object at the first use of the handle after its holder was collected. Collections run in
        any thread, which may not use the handle. Holders refer to their handle, so it is collected first only in a
        cycle; closing it then frees the native object."""
        weakref.finalize(holder, self._collected.append, (native, destroy))

    @property
    def is_closed(self) -> bool:
        """Whether close() was called."""
        return self._native is None

    def require_open(self) -> None:
        """Raises ValueError if the handle is closed."""
        if self.is_closed:
            raise ValueError("the handle is closed")

    def close(self) -> None:
        """Frees all objects that were created on the handle. A closed handle can be closed again."""
        self._native = None
        self._finalizer()

    def __enter__(self) -> Handle:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def __reduce__(self) -> NoReturn:
        raise TypeError("a handle cannot be copied or pickled")

    def live_blocks(self) -> int:
        """Number of memory blocks allocated on the handle; 0 if no objects are left."""
        return int(lib.mirk_platform_live_blocks(self.native))

    def call(self, function: Callable[..., Any], *arguments: Any) -> Any:
        """Calls a C function of the form (h, ctx_id, ..., err). Raises OSError if it sets err."""
        err = ffi.new("uint32_t *")
        result = function(self.native, CTX_ID, *arguments, err)
        if err[0] != 0:
            raise OSError(err[0], os.strerror(err[0]))
        return result

    @contextlib.contextmanager
    def reading(self, frame: bytes, test: Callable[[], None]) -> Iterator[None]:
        """While a frame is read, limits the memory that it can make the runtime allocate. If it cannot be read, the test
        raises a better error, or else the error is raised. A test before reading would take far longer than reading."""
        ceiling = lib.mirk_platform_handle_limit_growth(self.native, _GROWTH * len(frame) + _LEAST_GROWTH)
        try:
            yield
        except OSError:
            test()
            raise
        finally:
            lib.mirk_platform_handle_set_total_ceiling(self._native, ceiling)

    def grown(self, guess: int, write: Callable[[Any, int, Any], Any]) -> bytes:
        """Returns what write(buffer, size, err) writes. Retries with a larger buffer if it is too small. The buffer has
        a guard byte after the size that is passed."""
        size = min(guess, _MAX_BUFFER_SIZE)
        while True:
            buffer = ffi.new("char[]", b" " * size)  # the guard byte is the NUL that cffi appends
            err = ffi.new("uint32_t *")
            written = write(buffer, size, err)
            if err[0] in _BUFFER_TOO_SMALL and size < _MAX_BUFFER_SIZE:
                size = min(4 * size, _MAX_BUFFER_SIZE)
                continue
            if err[0] != 0:
                raise OSError(err[0], os.strerror(err[0]))
            return bytes(ffi.buffer(buffer, written))


_own = threading.local()


def handle(tracked: bool = False) -> Handle:
    """The default handle of this thread: objects are created on it unless the argument on is given."""
    name = "tracked" if tracked else "plain"
    found: Handle | None = getattr(_own, name, None)
    if found is None or found.is_closed:
        found = Handle(tracked)
        setattr(_own, name, found)
    return found


class Document:
    """Parses XML for the duration of a with statement. Raises ValueError with the line if it is malformed."""

    def __init__(self, text: str | bytes) -> None:
        self._text = text.encode() if isinstance(text, str) else text

    def __enter__(self) -> Any:
        report = ffi.new("mirk_platform_report *")
        self._document = lib.mirk_platform_document_load_memory(self._text, len(self._text), report)
        if self._document == ffi.NULL:
            sentence = ffi.string(report.sentence).decode(errors="replace")  # it can be cut in a character
            raise ValueError(f"line {report.line}: {sentence}")
        return self._document

    def __exit__(self, *_: object) -> None:
        lib.mirk_platform_document_free(self._document)
