"""The library, its runtime, and handles on it."""

from __future__ import annotations

import os
import threading
import weakref
from pathlib import Path
from typing import Any, Callable

from ._cffi import ffi as ffi

# Some releases of cffi end the process when they meet a type of function before the structure that it takes.
ffi.typeof("mirk_handle")


def _library() -> str:
    """The library of the installation that the package lies in, as LIBRARIES/python3/dist-packages/lumo_tarn; else the
    loader knows."""
    name = "liblumo_ui_tarn.so.1"
    beside = Path(__file__).resolve().parents[3] / name
    return os.environ.get("LUMO_TARN_LIBRARY") or (str(beside) if beside.exists() else name)


# Objects that are left when the interpreter ends are destroyed then: the library stays loaded for them.
lib: Any = ffi.dlopen(_library(), os.RTLD_NOW | os.RTLD_NODELETE)

CTX_ID = 1
_LACK_OF_ROOM = (12, 28, 90)
_MOST_BYTES = 1 << 30

lib.mirk_lumo_ui_tarn_type_trace_init()
lib.mirk_lumo_ui_tarn_message_trace_init()
if "MIRK_TRACE" not in os.environ:
    lib.mirk_platform_trace_set_levels(1)  # errors are raised, and need not be told twice


def _destroy(closing: Any, h: Any, native: Any, destroy: Callable[..., Any], ctx_id: int = CTX_ID) -> None:
    if closing.alive:
        destroy(h, ctx_id, native)


class Handle:
    """A handle of the runtime. It belongs to one thread at a time, and so does everything that was made with it."""

    def __init__(self, tracked: bool = False) -> None:
        options = ffi.new("mirk_platform_handle_options *")
        lib.mirk_platform_handle_options_init_sized(options, ffi.sizeof(options[0]))
        options.tracking = lib.MIRK_PLATFORM_TRACKING_ON if tracked else lib.MIRK_PLATFORM_TRACKING_NONE
        self.tracked = tracked
        native = lib.mirk_platform_handle_open(options)
        if native == ffi.NULL:
            raise MemoryError("no memory for a handle")
        self.native: Any = native
        self._closing = weakref.finalize(self, lib.mirk_platform_handle_close, native)

    def destroy_with(self, holder: object, native: Any, destroy: Callable[..., Any]) -> None:
        """Destroys the native object when its holder goes. A handle that goes first releases what is left; that happens
        only when both are parts of one cycle, since holders hold their handle."""
        weakref.finalize(holder, _destroy, self._closing, self.native, native, destroy)

    def live_blocks(self) -> int:
        """Blocks of memory that objects hold; 0 when none is left."""
        return int(lib.mirk_platform_live_blocks(self.native))

    def call(self, function: Callable[..., Any], *arguments: Any) -> Any:
        """Calls an operation of the form (h, ctx_id, ..., err) and raises what it reports."""
        err = ffi.new("uint32_t *")
        result = function(self.native, CTX_ID, *arguments, err)
        if err[0] != 0:
            raise OSError(err[0], os.strerror(err[0]))
        return result

    def grown(self, guess: int, write: Callable[[Any, int, Any], Any]) -> bytes:
        """What a writer writes into a buffer that grows until it is content, with a spare byte behind it."""
        size = guess
        while True:
            buffer = ffi.new("char[]", b" " * size)
            err = ffi.new("uint32_t *")
            written = write(buffer, size, err)
            if err[0] in _LACK_OF_ROOM and size < _MOST_BYTES:
                size *= 4
                continue
            if err[0] != 0:
                raise OSError(err[0], os.strerror(err[0]))
            return bytes(ffi.buffer(buffer, written))


_own = threading.local()


def handle(tracked: bool = False) -> Handle:
    """The handle of this thread that objects are made with if none is named."""
    name = "tracked" if tracked else "plain"
    if not hasattr(_own, name):
        setattr(_own, name, Handle(tracked))
    found: Handle = getattr(_own, name)
    return found


class Document:
    """A parsed document, for the time of a with statement."""

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
