"""The shared library and handles of its runtime."""

from __future__ import annotations

import errno
import os
import threading
import weakref
from pathlib import Path
from typing import Any, Callable

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

lib.mirk_lumo_ui_tarn_type_trace_init()
lib.mirk_lumo_ui_tarn_message_trace_init()
if "MIRK_TRACE" not in os.environ:
    lib.mirk_platform_trace_set_levels(1)  # errors are raised, so traces would repeat them


def _destroy(closing: Any, h: Any, native: Any, destroy: Callable[..., Any], ctx_id: int = CTX_ID) -> None:
    if closing.alive:
        destroy(h, ctx_id, native)


class Handle:
    """A handle of the runtime. Use it, and the objects created on it, from one thread at a time. On a tracked handle
    records have state bytes."""

    def __init__(self, tracked: bool = False) -> None:
        options = ffi.new("mirk_platform_handle_options *")
        lib.mirk_platform_handle_options_init_sized(options, ffi.sizeof(options[0]))
        options.tracking = lib.MIRK_PLATFORM_TRACKING_ON if tracked else lib.MIRK_PLATFORM_TRACKING_NONE
        self.tracked = tracked
        native = lib.mirk_platform_handle_open(options)
        if native == ffi.NULL:
            raise MemoryError("cannot allocate a handle")
        self.native: Any = native
        self._closing = weakref.finalize(self, lib.mirk_platform_handle_close, native)

    def destroy_with(self, holder: object, native: Any, destroy: Callable[..., Any]) -> None:
        """Destroys the native object when its holder is collected. Holders refer to their handle, so it is collected
        first only in a cycle; closing it then frees the native object."""
        weakref.finalize(holder, _destroy, self._closing, self.native, native, destroy)

    def live_blocks(self) -> int:
        """Number of memory blocks allocated on the handle; 0 if all objects are destroyed."""
        return int(lib.mirk_platform_live_blocks(self.native))

    def call(self, function: Callable[..., Any], *arguments: Any) -> Any:
        """Calls a C function of the form (h, ctx_id, ..., err). Raises OSError if it sets err."""
        err = ffi.new("uint32_t *")
        result = function(self.native, CTX_ID, *arguments, err)
        if err[0] != 0:
            raise OSError(err[0], os.strerror(err[0]))
        return result

    def grown(self, guess: int, write: Callable[[Any, int, Any], Any]) -> bytes:
        """Returns what write(buffer, size, err) writes. Retries with a larger buffer if it is too small. The buffer has
        a guard byte after the size that is passed."""
        size = guess
        while True:
            buffer = ffi.new("char[]", b" " * size)  # the guard byte is the NUL that cffi appends
            err = ffi.new("uint32_t *")
            written = write(buffer, size, err)
            if err[0] in _BUFFER_TOO_SMALL and size < _MAX_BUFFER_SIZE:
                size *= 4
                continue
            if err[0] != 0:
                raise OSError(err[0], os.strerror(err[0]))
            return bytes(ffi.buffer(buffer, written))


_own = threading.local()


def handle(tracked: bool = False) -> Handle:
    """The default handle of this thread: objects are created on it unless the argument on is given."""
    name = "tracked" if tracked else "plain"
    if not hasattr(_own, name):
        setattr(_own, name, Handle(tracked))
    found: Handle = getattr(_own, name)
    return found


class Document:
    """Parses XML for the duration of a with statement. Raises ValueError with the line if it is malformed."""

    def __init__(self, text: str | bytes) -> None:
        self._text = text.encode() if isinstance(text, str) else text

    def __enter__(self) -> Any:
        report = ffi.new("mirk_platform_report *")
        self._document = lib.mirk_platform_document_load_memory(self._text, len(self._text), report)
        if self._document == ffi.NULL:
            sentence = ffi.string(report.sentence).decode()
            raise ValueError(f"line {report.line}: {sentence}")
        return self._document

    def __exit__(self, *_: object) -> None:
        lib.mirk_platform_document_free(self._document)
