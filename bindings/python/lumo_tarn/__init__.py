"""Records, messages and bundles of the traffic-aware routing feature tarn as Python objects.

    for message in lumo_tarn.messages(open("answer.bin", "rb")):
        for table in message.payload.lumo_data:
            for tc in table.agg_tc_list.tc_list:
                print(tc.id, tc.src_prefix, tc.dst_prefix)

Each record of the schema is a class, such as DpTc, with an attribute for each member. The package loads the shared
library from the path in the environment variable LUMO_TARN_LIBRARY, else from its own installation, else as
liblumo_ui_tarn.so.1 from the loader's search path. Errors of the library raise OSError with an errno number.

Records and messages are created on a handle, by default on one that belongs to the thread. Use a handle and everything
on it from one thread at a time, also for reading. To pass a record or message to another thread, pass its frame, its
pickle, or a copy on a handle of its own, which moves with it: record.copy(on=lumo_tarn.Handle()). Any thread may drop
the last reference to an object: it is destroyed by the thread that uses its handle next. Address, Control and the
enumerations are immutable and can be shared.
"""

from ._address import Address
from ._base import Array, Message, Record
from ._captures import Capture, Control, Skipped, bundle_frames, frames, messages, recording
from ._client import AbortedError, Client, InvalidAnswerError, LimitError, RefusedError, ask, ask_async
from ._diff import Change, diff
from ._native import Handle, handle
from ._rows import rows
from ._server import Request, Server
from .records import *  # noqa: F403 - the classes of the schema
from .records import __all__ as _classes

serve = Server

__all__ = [
    "AbortedError",
    "Address",
    "Array",
    "Capture",
    "Change",
    "Client",
    "Control",
    "Handle",
    "InvalidAnswerError",
    "LimitError",
    "Message",
    "Record",
    "RefusedError",
    "Request",
    "Server",
    "Skipped",
    "ask",
    "ask_async",
    "bundle_frames",
    "diff",
    "frames",
    "handle",
    "messages",
    "recording",
    "rows",
    "serve",
]
__all__ += _classes
